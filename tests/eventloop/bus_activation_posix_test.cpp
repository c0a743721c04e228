#include "eventloop/bus_activation_posix.h"

#include <QProcess>
#include <QTemporaryDir>
#include <memory>

#include "event_loop_fixture.h"

namespace velmora {
namespace {

const QString kName = QStringLiteral("org.velmora.Tests.one");

/// A bus of the test's own, with a connection for each program that it stands for.
class BusActivationTest : public EventLoopFixture {
  protected:
    void SetUp() override {
        bus_.start(
            QStringLiteral("dbus-daemon"),
            {QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--print-address"),
             QStringLiteral("--address=unix:path=") + folder_.filePath(QStringLiteral("bus"))});
        ASSERT_TRUE(bus_.waitForReadyRead()) << qPrintable(bus_.errorString());
        address_ = QString::fromLocal8Bit(bus_.readLine()).trimmed();
    }
    void TearDown() override {
        for (const QString& name : connections_) {
            QDBusConnection::disconnectFromBus(name);
        }
        bus_.terminate();
        bus_.waitForFinished();
    }
    QDBusConnection connection() {
        connections_.append(QStringLiteral("test-%1").arg(connections_.size()));
        return QDBusConnection::connectToBus(address_, connections_.last());
    }

    /// What the bus sees when the program with the n-th connection ends.
    void endProgram(int n) { QDBusConnection::disconnectFromBus(connections_.at(n)); }

    int activations = 0;

  private:
    QTemporaryDir folder_;
    QProcess bus_;
    QString address_;
    QStringList connections_;
};

TEST_F(BusActivationTest, ASecondStartActivatesTheFirst) {
    const BusActivation first(connection(), kName, [this] { ++activations; });
    EXPECT_TRUE(first.first());
    BusActivation second(connection(), kName, [] { FAIL() << "the second is not the one to be shown"; });
    EXPECT_FALSE(second.first());
    EXPECT_EQ(activations, 0);
    EXPECT_TRUE(second.activateOther());
    EXPECT_EQ(activations, 1);
}

TEST_F(BusActivationTest, AnotherNameIsSomebodyElse) {
    const BusActivation first(connection(), kName, [] {});
    const BusActivation other(connection(), kName + QLatin1Char('2'), [] {});
    EXPECT_TRUE(first.first());
    EXPECT_TRUE(other.first());
}

TEST_F(BusActivationTest, ANameIsFreeAgainWhenItsOwnerHasEnded) {
    {
        const BusActivation first(connection(), kName, [] {});
    }
    endProgram(0);
    const BusActivation next(connection(), kName, [] {});
    EXPECT_TRUE(next.first());
}

TEST_F(BusActivationTest, OneThatEndsMeanwhileDoesNotAnswer) {
    auto first = std::make_unique<BusActivation>(connection(), kName, [] {});
    BusActivation late(connection(), kName, [] {});
    EXPECT_FALSE(late.first());
    first.reset();
    endProgram(0);
    EXPECT_FALSE(late.activateOther());
}

TEST_F(BusActivationTest, WithoutABusEachIsTheFirst) {
    const QDBusConnection none =
        QDBusConnection::connectToBus(QStringLiteral("unix:path=/nowhere/bus"), kName);
    const BusActivation first(none, kName, [] {});
    const BusActivation second(none, kName, [] {});
    EXPECT_TRUE(first.first());
    EXPECT_TRUE(second.first());
}

}  // namespace
}  // namespace velmora

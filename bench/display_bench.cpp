// What a change of the display costs: the controller's words to painted pixels.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QImage>

#include "ui/qt/frm_main.h"

namespace {

/// Both lines change and are painted, at 100 % and at 200 %.
void DisplayFrame(benchmark::State& state) {
    int argc = 1;
    char name[] = "display_bench";
    char* argv[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    velmora::frmMain window;
    window.show();
    QApplication::processEvents();
    auto* display = window.findChild<QWidget*>(QStringLiteral("imgBGround"));
    const qreal scale = static_cast<qreal>(state.range(0)) / 100;
    QImage pixels(display->size() * scale, QImage::Format_ARGB32_Premultiplied);
    pixels.setDevicePixelRatio(scale);
    bool odd = false;
    for (auto step : state) {
        odd = !odd;
        window.setDisplayLine(1, odd ? "Downloading file" : "ownloading file ");
        window.setDisplayLine(2, odd ? "  Contacts.odb  " : " Contacts.odb   ");
        display->render(&pixels);
        benchmark::DoNotOptimize(pixels.constBits());
    }
}
BENCHMARK(DisplayFrame)->Arg(100)->Arg(200)->Unit(benchmark::kMicrosecond);

}  // namespace

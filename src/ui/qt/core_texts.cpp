#include "ui/qt/core_texts.h"

#include <QCoreApplication>
#include <QList>
#include <QLocale>
#include <QStringList>
#include <algorithm>
#include <optional>

namespace velmora {
namespace {

/// What stands at a place of a pattern.
struct Filling {
    QChar place;  ///< '1' to '9'
    QString text;
};

bool mustBeNumber(QChar place) {
    return place == u'7' || place == u'8';
}

/// "16,392".
bool isNumber(const QString& text) {
    return std::ranges::all_of(text, [](QChar letter) { return letter.isDigit() || letter == u','; });
}

/// What fills the places of the pattern so that it reads as the text; nothing when it cannot.
std::optional<QList<Filling>> fillings(QString text, QString pattern) {
    QList<Filling> found;
    for (qsizetype place = pattern.indexOf(u'%'); place >= 0; place = pattern.indexOf(u'%')) {
        // A sign of percent that no number follows is itself.
        if (place + 1 >= pattern.size() || !pattern.at(place + 1).isDigit()) {
            if (text.left(place + 1) != pattern.left(place + 1)) {
                return std::nullopt;
            }
            text.remove(0, place + 1);
            pattern.remove(0, place + 1);
            continue;
        }
        const QChar number = pattern.at(place + 1);
        const QString before = pattern.left(place);
        pattern.remove(0, place + 2);
        const QString behind = pattern.left(pattern.indexOf(u'%'));
        const qsizetype end = behind.isEmpty() ? text.size() : text.indexOf(behind, place + 1);
        if (!text.startsWith(before) || end <= place) {
            return std::nullopt;
        }
        found.append({number, text.mid(place, end - place)});
        if (mustBeNumber(number) && !isNumber(found.last().text)) {
            return std::nullopt;
        }
        text.remove(0, end);
    }
    return text == pattern ? std::optional(found) : std::nullopt;
}

/// "16,392" as the user's language groups it. What has no groups, a rate of a line, gets none.
QString regrouped(QString number) {
    if (!number.contains(u',')) {
        return number;
    }
    return QLocale().toString(number.remove(u',').toLongLong());
}

/// What stands in the translation for what stood in the text.
QString translated(const Filling& filling) {
    constexpr QChar kSentence = u'9';
    if (filling.place == kSentence) {
        return coreText(filling.text);
    }
    return mustBeNumber(filling.place) ? regrouped(filling.text) : filling.text;
}

QString filled(const QString& translation, const QList<Filling>& fillings) {
    QString text;
    for (qsizetype i = 0; i < translation.size(); ++i) {
        const QChar next = i + 1 < translation.size() ? translation.at(i + 1) : QChar();
        const auto filling = std::ranges::find(fillings, next, &Filling::place);
        if (translation.at(i) != u'%' || filling == fillings.end()) {
            text += translation.at(i);
            continue;
        }
        text += translated(*filling);
        ++i;
    }
    return text;
}

QStringList patternTexts() {
    QStringList texts;
    for (const char* sentence : coreSentences()) {
        texts.append(QString::fromUtf8(sentence));
    }
    return texts;
}

std::optional<QString> knownText(const QString& english) {
    static const QStringList patterns = patternTexts();
    for (const QString& pattern : patterns) {
        // Most of them are told apart by how they begin.
        if (!english.startsWith(QStringView(pattern).left(pattern.indexOf(u'%')))) {
            continue;
        }
        if (const auto found = fillings(english, pattern)) {
            return filled(QCoreApplication::translate("Core", pattern.toUtf8()), *found);
        }
    }
    return std::nullopt;
}

/// The places behind the sentences of a text, before the blank.
QList<qsizetype> sentenceEnds(const QString& text) {
    QList<qsizetype> ends;
    for (qsizetype i = 1; i + 1 < text.size(); ++i) {
        if (text.at(i) == u' ' && QStringLiteral(".?!").contains(text.at(i - 1))) {
            ends.append(i);
        }
    }
    return ends;
}

QString lineText(const QString& english) {
    const QList<qsizetype> ends = sentenceEnds(english);
    for (qsizetype i = ends.size(); i >= 0; --i) {
        const qsizetype end = i == ends.size() ? english.size() : ends.at(i);
        if (const auto known = knownText(english.left(end))) {
            return end == english.size() ? *known : *known + u' ' + lineText(english.mid(end + 1));
        }
    }
    return ends.isEmpty() ? english
                          : english.left(ends.first() + 1) + lineText(english.mid(ends.first() + 1));
}

}  // namespace

QString coreText(const QString& english) {
    const char* anySentence = coreSentences().front();
    if (QCoreApplication::translate("Core", anySentence) == QLatin1String(anySentence)) {
        return english;
    }
    QStringList lines = english.split(u'\n');
    for (QString& line : lines) {
        line = lineText(line);
    }
    return lines.join(u'\n');
}

}  // namespace velmora

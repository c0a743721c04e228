#include "ui/qt/announcer.h"

namespace velmora {

Announcer::Announcer(QWidget* window) : QObject(window) {
    for (AlertArea*& area : areas_) {
        area = new AlertArea(window);
        area->setObjectName(QStringLiteral("announcement"));
        area->setFixedSize(1, 1);
        area->setAttribute(Qt::WA_TransparentForMouseEvents);
        area->hide();
    }
}

void Announcer::say(const QString& words) {
    if (words.isEmpty()) {
        return;
    }
    AlertArea* area = areas_[next_];
    next_ = (next_ + 1) % areas_.size();
    area->setAccessibleName(words);
    area->announce();
}

}  // namespace velmora

#include "ui/qt/help_key.h"

#include <QShortcut>
#include <utility>

namespace velmora {

void onHelpKey(QWidget& window, std::function<void()> help) {
    auto* key = new QShortcut(QKeySequence(Qt::Key_F1), &window);
    QObject::connect(key, &QShortcut::activated, &window, std::move(help));
}

}  // namespace velmora

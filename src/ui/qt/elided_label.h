// A label for texts of any length.
#pragma once

#include <QLabel>

namespace velmora {

/// Shows as much of one line as it has room for, with dots in the middle, which is where a path says least.
/// The whole text is its tip and its spoken description. It asks for no room of its own.
class ElidedLabel : public QLabel {
    Q_OBJECT

  public:
    explicit ElidedLabel(QWidget* parent = nullptr);

    void setWhole(const QString& text);
    const QString& whole() const { return whole_; }

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void elide();

    QString whole_;
};

/// A text in which each word that is wider than so many device-independent pixels has dots in its middle. A
/// label breaks its lines at blanks only, and grows with its widest word.
QString elideWords(const QString& text, const QFontMetrics& metrics, int width);

}  // namespace velmora

#include "controls/DisplayBox.h"

#include <QCloseEvent>
#include <QPainter>
#include <QScreen>
#include <QVBoxLayout>

namespace
{
constexpr QColor kPanelColor(0xFB, 0xFA, 0xF5);
constexpr QColor kPanelEdgeColor(0xC9, 0xC4, 0xB6);
constexpr qreal kCornerRadius = 6.0;

QPalette panelPalette()
{
    QPalette palette;
    palette.setColor(QPalette::Base, kPanelColor);
    palette.setColor(QPalette::Window, kPanelColor);
    palette.setColor(QPalette::Text, Qt::black);
    palette.setColor(QPalette::WindowText, Qt::black);
    palette.setColor(QPalette::PlaceholderText, QColor(0x6B, 0x67, 0x5C));
    return palette;
}
} // namespace

/// The frameless window that covers the screen while the box is in it.
class DisplayBox::FullScreenWindow final : public QWidget
{
public:
    explicit FullScreenWindow(DisplayBox &box) :
        QWidget(nullptr, Qt::FramelessWindowHint), _box(box)
    {
        setPalette(panelPalette());
        setWindowTitle(box.window()->windowTitle());
        auto *layout = new QVBoxLayout(this);
        layout->setContentsMargins({});
        layout->addWidget(&box);
    }

protected:
    void closeEvent(QCloseEvent *event) override
    {
        event->ignore();
        Q_EMIT _box.fullScreenCloseRequested();
    }

private:
    DisplayBox &_box;
};

DisplayBox::DisplayBox(QWidget *parent) : QFrame(parent)
{
    setPalette(panelPalette());
}

DisplayBox::~DisplayBox()
{
    // Away from home the window around the box is its parent, which must not take it along.
    if (isInFullScreenMode())
        setParent(nullptr);
}

void DisplayBox::enterFullScreenMode(QScreen &screen)
{
    Q_ASSERT(!isInFullScreenMode());
    QLayout *home = parentWidget()->layout();
    _placeholder = std::make_unique<QWidget>(parentWidget());
    _placeholder->setFixedSize(size());
    const std::unique_ptr<QLayoutItem> oldItem(home->replaceWidget(this, _placeholder.get()));
    // At once, because a layout has no place for what is hidden.
    _placeholder->show();

    _fullScreenWindow = std::make_unique<FullScreenWindow>(*this);
    _fullScreenWindow->setGeometry(screen.geometry());
    _fullScreenWindow->showFullScreen();
    _fullScreenWindow->raise();
    _fullScreenWindow->activateWindow();
}

void DisplayBox::exitFullScreenModeWithOptions()
{
    Q_ASSERT(isInFullScreenMode());
    QLayout *home = _placeholder->parentWidget()->layout();
    const std::unique_ptr<QLayoutItem> oldItem(home->replaceWidget(_placeholder.get(), this));
    _placeholder.reset();
    show();
    // Its destruction may be asked for by one of its own events.
    _fullScreenWindow->hide();
    _fullScreenWindow.release()->deleteLater();
}

void DisplayBox::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    if (isInFullScreenMode()) {
        painter.fillRect(rect(), kPanelColor);
        return;
    }
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(kPanelColor);
    painter.setPen(kPanelEdgeColor);
    const QRectF panel = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.drawRoundedRect(panel, kCornerRadius, kCornerRadius);
}

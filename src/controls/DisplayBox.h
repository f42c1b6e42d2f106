#pragma once

#include "controls/RemainingBar.h"

#include <QFrame>
#include <QList>
#include <QPointer>

#include <memory>

class QScreen;

/// The panel behind a timer's texts. It has the colours of `PanelColors` for the palette of the
/// widget around it, and follows that palette. A bar at its foot shows what is left of a countdown.
/// It can leave its window to fill a screen, and returns to exactly its old place.
class DisplayBox final : public QFrame
{
    Q_OBJECT

public:
    explicit DisplayBox(QWidget *parent = nullptr);
    ~DisplayBox() override;

    /// Fills the screen. The box must be in a layout, and not in full-screen mode. If its own
    /// window is destroyed meanwhile, so is the box.
    void enterFullScreenMode(QScreen &screen);

    /// Returns the box to its window. It must be in full-screen mode.
    void exitFullScreenModeWithOptions();

    [[nodiscard]] bool isInFullScreenMode() const { return _fullScreenWindow != nullptr; }

    /// The share of the countdown that the bar shows, from 0 to 1; at 0 there is no bar. A new
    /// share is painted only if the bar then ends at another pixel.
    [[nodiscard]] double shareLeft() const { return _bar.share(); }
    void setShareLeft(double share);

    [[nodiscard]] QColor barColor() const { return _bar.color(); }
    void setBarColor(const QColor &color);

Q_SIGNALS:
    /// The user has asked the window manager to close the full-screen window.
    void fullScreenCloseRequested();
    /// The window that holds the box, its own or the full-screen one, has become active.
    void windowActivated();
    /// The palette of the panel may have changed.
    void colorsChanged();

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    class FullScreenWindow;

    void destroyPlaceholder();
    [[nodiscard]] RemainingBar::Place barPlace() const;
    /// Takes the colours of the widget that the box is in now, and of its later palettes.
    void followTheme();
    void takeColors();

    /// The widget that the box is in.
    QPointer<QWidget> _surroundings;
    QColor _edgeColor;
    std::unique_ptr<FullScreenWindow> _fullScreenWindow;
    /// Holds the box's place in its window during full-screen mode. The window owns it.
    QPointer<QWidget> _placeholder;
    /// The tab order of the box's window before the box left it.
    QList<QPointer<QWidget>> _tabOrder;
    RemainingBar _bar;
};

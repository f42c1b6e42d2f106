#pragma once

#include <QVariantAnimation>
#include <QWidget>

/// A panel that slides out of the lower edge of the window it is laid out in, and back.
///
/// What it holds is the one widget in its layout. The slide follows the style's animation
/// setting; a closed drawer is hidden, so that the keyboard cannot reach into it.
class Drawer final : public QWidget
{
    Q_OBJECT

public:
    enum class State { Closed = 0, Opening = 1, Open = 2, Closing = 3 };

    explicit Drawer(QWidget *parent = nullptr);

    [[nodiscard]] State state() const { return _state; }

    /// Opens a closed or closing drawer, and closes an open or opening one from where it is.
    void toggle();

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The slide has begun, turned round or ended.
    void stateChanged();

protected:
    bool event(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    [[nodiscard]] QWidget *content() const;
    void slide(State state, QVariantAnimation::Direction direction);
    void setState(State state);
    void finishSlide();
    void placeContent();

    State _state = State::Closed;
    QVariantAnimation _slide;
};

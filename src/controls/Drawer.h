#pragma once

#include <QVariantAnimation>
#include <QWidget>

/// A panel that slides out of the lower edge of its window, and back.
///
/// Its content is its one child widget. The slide follows the style's animation setting. A closed
/// drawer is hidden, so that the keyboard cannot reach its content.
class Drawer final : public QWidget
{
    Q_OBJECT

public:
    enum class State { Closed = 0, Opening = 1, Open = 2, Closing = 3 };

    explicit Drawer(QWidget *parent = nullptr);

    [[nodiscard]] State state() const { return _state; }
    /// Open, or about to be.
    [[nodiscard]] bool isExpanded() const
    {
        return _state == State::Opening || _state == State::Open;
    }

    /// Opens a closed or closing drawer, closes an open or opening one. A running slide reverses.
    void toggle();

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The slide has started, reversed or ended.
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

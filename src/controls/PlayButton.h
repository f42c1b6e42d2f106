#pragma once

#include <QToolButton>

/// A small button that offers to play something while that is silent, and to stop it while it
/// plays. It only shows which; whoever plays says so. The signs are drawn in the colours of the
/// theme, at any size.
class PlayButton final : public QToolButton
{
    Q_OBJECT
    /// What the button does while nothing plays, and while something does, in words.
    Q_PROPERTY(QString playText READ playText WRITE setPlayText)
    Q_PROPERTY(QString stopText READ stopText WRITE setStopText)

public:
    explicit PlayButton(QWidget *parent = nullptr);

    [[nodiscard]] QString playText() const { return _playText; }
    void setPlayText(const QString &text);
    [[nodiscard]] QString stopText() const { return _stopText; }
    void setStopText(const QString &text);

    [[nodiscard]] bool isPlaying() const { return _playing; }
    void setPlaying(bool playing);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void describe();

    QString _playText;
    QString _stopText;
    bool _playing = false;
};

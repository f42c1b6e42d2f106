#pragma once

#include <QToolButton>

/// A small button to play something and to stop it again. It only shows which of the two a click
/// does; the code that plays calls setPlaying(). The signs have the theme's colours, at any size.
class PlayButton final : public QToolButton
{
    Q_OBJECT
    /// The tool tip and accessible name while nothing plays, and while something does.
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

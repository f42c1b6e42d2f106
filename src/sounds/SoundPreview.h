#pragma once

#include "base/ClockTimer.h"
#include "base/Sound.h"

#include <QObject>

class DataComboBox;
class PlayButton;

/// Lets the user hear the sound selected in a combo box: a press of the button plays it, another
/// press or another selection stops it. Nothing is opened and nothing ticks unless a sound plays.
class SoundPreview final : public QObject
{
    Q_OBJECT

public:
    /// The button and the box must outlive the preview.
    SoundPreview(PlayButton &button, const DataComboBox &combo);
    ~SoundPreview() override;

    void stop();

    /// Whether the sound may be played now; stops it when not.
    void setEnabled(bool enabled);

    /// Stops the sound if it is no longer the one selected, for a box that has been filled anew
    /// without a word.
    void followChoice();

Q_SIGNALS:
    /// A sound is about to be played.
    void starting();

private:
    [[nodiscard]] QString choice() const;
    void playOrStop();
    void play();
    void noticeEnd();

    PlayButton &_button;
    const DataComboBox &_combo;
    std::unique_ptr<Sound> _sound;
    /// What was selected when it began.
    QString _choice;
    /// Looks for the end of the sound while it plays; nobody tells of it.
    ClockTimer _endTimer{[this] { noticeEnd(); }};
};

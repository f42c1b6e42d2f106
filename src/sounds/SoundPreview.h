#pragma once

#include "base/ClockTimer.h"
#include "base/Sound.h"

#include <QObject>

class DataComboBox;
class PlayButton;

/// Lets the user hear the sound selected in a combo box: the button plays it, and a second press or
/// another selection stops it. Opens no sound and runs no timer unless a sound plays.
class SoundPreview final : public QObject
{
    Q_OBJECT

public:
    /// The button and the box must outlive the preview.
    SoundPreview(PlayButton &button, const DataComboBox &combo);
    ~SoundPreview() override;

    void stop();

    /// Enables or disables the button; disabling stops the sound.
    void setEnabled(bool enabled);

    /// Stops the sound if it is not selected any more. To be called when the combo box has been
    /// filled while its signals were blocked.
    void followChoice();

Q_SIGNALS:
    /// A sound is about to be played.
    void starting();

private:
    [[nodiscard]] QString choice() const;
    void playOrStop();
    void play();
    void stopAtEnd();

    PlayButton &_button;
    const DataComboBox &_combo;
    std::unique_ptr<Sound> _sound;
    /// The selection when the sound began.
    QString _choice;
    /// Checks whether the playing sound has ended, because a sound has no signal for its end.
    ClockTimer _endTimer{[this] { stopAtEnd(); }};
};

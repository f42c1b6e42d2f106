#pragma once

#include "sounds/SoundPreview.h"

/// The previews of the alarm and of the countdown sound in one window, of which one plays at a
/// time.
class SoundPreviews final : public QObject
{
    Q_OBJECT

public:
    /// A button, and the box with the sound that it plays. Both must outlive the previews.
    struct Place
    {
        PlayButton &button;
        const DataComboBox &combo;
    };
    SoundPreviews(Place alarm, Place countdown);

    void stop();

    /// Which of the sounds may be played now; stops the other.
    void setEnabled(bool alarm, bool countdown);

    /// Stops a sound that is no longer selected.
    void followChoices();

private:
    SoundPreview _alarm;
    SoundPreview _countdown;
};

#pragma once

#include "sounds/SoundPreview.h"

/// The previews of the alarm sound and the countdown sound in one window. Only one plays at a time.
class SoundPreviews final : public QObject
{
    Q_OBJECT

public:
    /// A button, and the combo box whose sound it plays. Both must outlive the previews.
    struct Place
    {
        PlayButton &button;
        const DataComboBox &combo;
    };
    SoundPreviews(Place alarm, Place countdown);

    void stop();

    /// Enables or disables each button; disabling stops its sound.
    void setEnabled(bool alarm, bool countdown);

    /// Stops a sound that is not selected any more.
    void followChoices();

private:
    SoundPreview _alarm;
    SoundPreview _countdown;
};

#pragma once

#include "app/WufferApplication.h"
#include "controls/DisplayBox.h"
#include "controls/DisplayLabel.h"
#include "controls/PopUpComboBox.h"
#include "controls/WebbyComboBox.h"
#include "support/Find.h"
#include "timer/Wuffer.h"
#include "timer/WufferWindow.h"

#include <QCheckBox>
#include <QHash>
#include <QLineEdit>
#include <QPushButton>

/// One timer in its window, and what a user does with it.
class TimerUser
{
public:
    /// Opens a timer.
    TimerUser() = default;
    /// Uses a timer that is already open.
    explicit TimerUser(Wuffer &open) : timer(open) {}

    Wuffer &timer = WufferApplication::instance().openWuffer();

    // What a user does.
    void typeDuration(int hours, int minutes, int seconds);
    void typeName(const QString &name);
    void pressGo() { timer.goPressed(); }
    void startCountdown(int seconds);
    void tick(const char *box, bool on = true) { part<QCheckBox>(box).setChecked(on); }
    void chooseFinish(const QString &action);
    /// Chooses the entry of the picker at this index.
    void pick(int index);
    void chooseAlarm(const QString &path);
    void chooseBeep(const QString &path);

    // What a user sees.
    [[nodiscard]] QString display() const { return label("_resultLabel").text(); }
    [[nodiscard]] QString elapsed() const { return label("_elapsedLabel").text(); }
    [[nodiscard]] QString milliseconds() const { return label("_msLabel").text(); }
    [[nodiscard]] QPushButton &goButton() const { return part<QPushButton>("_goButton"); }
    [[nodiscard]] QString go() const { return goButton().text(); }
    [[nodiscard]] QString finish() const { return part<QComboBox>("_finishedCombo").currentText(); }
    [[nodiscard]] QComboBox &picker() const { return part<QComboBox>("_finishedPicker"); }
    /// The three fields: "0 5 12.5".
    [[nodiscard]] QString fields() const;
    [[nodiscard]] QColor color() const { return label("_resultLabel").textColor(); }
    [[nodiscard]] QColor elapsedColor() const { return label("_elapsedLabel").textColor(); }
    [[nodiscard]] bool isFullScreen() const { return box().isInFullScreenMode(); }

    [[nodiscard]] DisplayLabel &label(const char *name) const { return *labels.value(name); }
    [[nodiscard]] DisplayBox &box() const { return displayBox; }
    template<class Class> [[nodiscard]] Class &part(const char *name) const
    {
        return child<Class>(*timer.window(), name);
    }

    /// Looked up at once, like the display box and its labels below.
    QLineEdit &titleField = part<QLineEdit>("_titleField");

private:
    [[nodiscard]] QHash<QByteArray, DisplayLabel *> findLabels() const;

    // Looked up at once, because full screen mode takes them out of the window.
    DisplayBox &displayBox = part<DisplayBox>("_displayBox");
    QHash<QByteArray, DisplayLabel *> labels = findLabels();
};

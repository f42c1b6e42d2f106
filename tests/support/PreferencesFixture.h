#pragma once

#include "app/WufferApplication.h"
#include "controls/ElidedLabel.h"
#include "controls/PlayButton.h"
#include "controls/WebbyComboBox.h"
#include "preferences/Preferences.h"
#include "support/Find.h"
#include "support/NoticeCounter.h"
#include "support/TestServices.h"
#include "timer/Wuffer.h"
#include "timer/WufferWindow.h"

#include <QAction>
#include <QCheckBox>
#include <QJsonObject>
#include <QLineEdit>
#include <QMainWindow>
#include <QTabWidget>

#include <functional>

/// The preferences in their window with services of their own, and what a user does with them.
class PreferencesFixture : public TestServices
{
public:
    QMainWindow window;
    QAction muteMenu;
    std::unique_ptr<Preferences> preferences;

    /// Creates the preferences from the current settings. Call it once.
    Preferences &open();
    [[nodiscard]] Wuffer &openTimer() { return WufferApplication::instance().openWuffer(); }

    // What a user does.
    void click(const char *box) const { part<QCheckBox>(box).click(); }
    /// Selects the entry with this text, as a click in the open list does.
    void choose(const char *combo, const QString &text) const;
    void type(const QString &text) const;
    /// Does something in the event loop, while an operation waits in it.
    void meanwhile(const std::function<void()> &action);

    // What the settings and the window hold.
    void set(const char *key, const QVariant &value);
    /// The contents of the settings file; empty if it cannot be read.
    [[nodiscard]] QJsonObject stored();
    /// The entries of a combo box, in order.
    [[nodiscard]] static QStringList entries(const QComboBox &combo);
    [[nodiscard]] QStringList entries(const char *combo) const
    {
        return entries(part<QComboBox>(combo));
    }
    [[nodiscard]] QString selected(const char *combo) const;
    [[nodiscard]] QString label(const char *name) const { return part<ElidedLabel>(name).text(); }
    [[nodiscard]] bool isEnabled(const char *name) const { return part<QWidget>(name).isEnabled(); }

    template<class Class> [[nodiscard]] Class &part(const char *name) const
    {
        return child<Class>(window, name);
    }
};

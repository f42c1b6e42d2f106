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

/// The preferences in their window, and the verbs to use them by, on services of their own.
class PreferencesFixture : public TestServices
{
public:
    QMainWindow window;
    QAction muteMenu;
    std::unique_ptr<Preferences> preferences;

    /// Makes the preferences, once, from what is in the settings by then.
    Preferences &open();
    [[nodiscard]] Wuffer &openTimer() { return WufferApplication::instance().openWuffer(); }

    // What a user does.
    void click(const char *box) const { part<QCheckBox>(box).click(); }
    /// Selects the entry that shows this text, as from the open list.
    void choose(const char *combo, const QString &text) const;
    void type(const QString &text) const;

    // What there is.
    void set(const char *key, const QVariant &value);
    /// The settings file.
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

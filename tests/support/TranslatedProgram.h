#pragma once

#include "app/WufferApplication.h"
#include "app/WufferController.h"
#include "support/PseudoLanguage.h"
#include "support/ShownTexts.h"
#include "support/TestServices.h"
#include "timer/Wuffer.h"
#include "timer/WufferWindow.h"

#include <QMenu>
#include <QMenuBar>
#include <QtTest/QTest>

/// The texts that the program shows in the pseudo-language. Make it before the program.
class TranslatedTexts final
{
public:
    void gather() { _texts.gather(); }
    void add(const QString &text, const char *place)
    {
        _texts.add(text, QString::fromLatin1(place));
    }

    /// Fails if one of the texts found so far has bypassed translation.
    void check() const
    {
        const QString found = PseudoLanguage::untranslated(_texts);
        if (!found.isEmpty())
            qInfo().noquote() << found;
        QVERIFY2(found.isEmpty(), "these texts are not translated");
    }

private:
    const PseudoLanguage _language{QStringLiteral(WUFFER_PSEUDO_LANGUAGE)};
    ShownTexts _texts;
};

/// The program with one timer, in the pseudo-language.
class TranslatedProgram : public TestServices
{
public:
    TranslatedProgram() { controller.awakeFromNib(); }

    /// The newest timer and its window.
    [[nodiscard]] static Wuffer &timer() { return *WufferApplication::getWuffers().back(); }
    [[nodiscard]] static WufferWindow &window() { return *timer().window(); }

    /// Opens all menus, so that they fill themselves.
    static void openMenus()
    {
        for (const QAction *top : window().menuBar()->actions()) {
            Q_EMIT top->menu()->aboutToShow();
            for (const QAction *action : top->menu()->actions()) {
                if (action->menu())
                    Q_EMIT action->menu()->aboutToShow();
            }
        }
    }

    /// Checks all texts found so far, and those that exist now.
    void check()
    {
        texts.gather();
        texts.check();
    }

    TranslatedTexts texts;
    WufferController controller;
};

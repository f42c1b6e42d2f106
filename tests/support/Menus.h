#pragma once

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QtTest/QTest>

/// The menu of this title in the window's menu bar, or in one of its menus. If there is none, the
/// test program ends with a message that says what was missing.
inline QMenu &menu(const QMainWindow &window, const QString &title)
{
    for (const QAction *top : window.menuBar()->actions()) {
        QList<QAction *> actions = top->menu()->actions();
        for (QAction *action : QList<QAction *>{top->menu()->menuAction()} + actions) {
            if (action->menu() && action->text().remove(QLatin1Char('&')) == title)
                return *action->menu();
        }
    }
    qFatal("there is no menu %s", qPrintable(title));
}

/// The texts of the menu's items as they are shown; "-" for a separator.
inline QStringList textsOf(const QMenu &menu)
{
    QStringList texts;
    for (const QAction *action : menu.actions()) {
        texts << (action->isSeparator() ? QStringLiteral("-")
                                        : action->text().remove(QLatin1Char('&')));
    }
    return texts;
}

/// Activates the window, and waits until it is active.
inline void activate(QWidget &window)
{
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
}

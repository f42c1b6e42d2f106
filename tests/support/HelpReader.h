#pragma once

#include "app/WufferApplication.h"
#include "app/WufferController.h"
#include "support/Menus.h"
#include "support/TimerFixture.h"
#include "tools/HelpBrowser.h"
#include "tools/HelpPanel.h"

#include <QLabel>
#include <QListWidget>

/// The program with one timer, and a user who reads the help.
class Reader
{
public:
    Reader()
    {
        controller.awakeFromNib();
        activate(timerWindow());
    }

    /// The help panel. The help must have been opened.
    [[nodiscard]] static HelpPanel &panel()
    {
        for (const QWidget *window : QApplication::topLevelWidgets()) {
            if (auto *panel = window->findChild<HelpPanel *>())
                return *panel;
        }
        qFatal("the help is not open");
    }
    [[nodiscard]] static QMainWindow &window()
    {
        return static_cast<QMainWindow &>(*panel().window());
    }
    [[nodiscard]] static HelpBrowser &browser() { return child<HelpBrowser>(panel(), "_browser"); }
    [[nodiscard]] static QListWidget &list() { return child<QListWidget>(panel(), "_pageList"); }
    [[nodiscard]] static QLineEdit &field() { return child<QLineEdit>(panel(), "_searchField"); }

    /// The name of the current page.
    [[nodiscard]] static QString page()
    {
        return browser().pages().at(static_cast<std::size_t>(browser().currentPage())).name;
    }
    [[nodiscard]] static QStringList listed()
    {
        QStringList texts;
        for (int row = 0; row < list().count(); ++row)
            texts << list().item(row)->text();
        return texts;
    }
    [[nodiscard]] static QString count() { return child<QLabel>(panel(), "_hitsLabel").text(); }
    [[nodiscard]] static QString selected() { return browser().textCursor().selectedText(); }
    [[nodiscard]] static WufferWindow &timerWindow()
    {
        return *WufferApplication::getWuffers().back()->window();
    }

    void open()
    {
        controller.showHelp();
        activate(window());
    }
    /// Presses a key in the window that has the focus.
    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(QGuiApplication::focusWindow(), key, modifiers);
    }
    void searchFor(const char *words)
    {
        press(Qt::Key_F, Qt::ControlModifier);
        for (const char *letter = words; *letter; ++letter)
            QTest::keyClick(QGuiApplication::focusWindow(), *letter);
    }

    const TestServices services;
    WufferController controller;
};

#pragma once

#include "app/AboutDialog.h"
#include "app/HomeWindow.h"
#include "app/WufferController.h"
#include "controls/Drawer.h"
#include "support/Find.h"
#include "support/TestServices.h"
#include "support/TimerUser.h"
#include "timer/TargetTimeSheet.h"
#include "tools/HelpBrowser.h"
#include "tools/MeasurementsPanel.h"
#include "tools/NumberField.h"

#include <QTabWidget>

#include <array>

/// The program with one timer, and a way to open each of its windows.
struct EveryWindow : TestServices
{
    /// A kind of window, in one state.
    struct Kind
    {
        const char *name;
        QWidget &(*open)(EveryWindow &program);
    };

    EveryWindow() { controller.awakeFromNib(); }

    [[nodiscard]] static Wuffer &timer() { return *WufferApplication::getWuffers().front(); }

    /// The windows that have controls.
    static const std::array<Kind, 10> kinds;

    WufferController controller;
};

inline const std::array<EveryWindow::Kind, 10> EveryWindow::kinds{
    Kind{"timer", [](EveryWindow &) -> QWidget & { return *timer().window(); }},
    Kind{"timer with options",
         [](EveryWindow &) -> QWidget & {
             timer().showHideAdvanced();
             const Drawer &drawer = child<Drawer>(*timer().window(), "_drawer");
             [[maybe_unused]] const bool opened =
                 QTest::qWaitFor([&] { return drawer.state() == Drawer::State::Open; });
             Q_ASSERT(opened);
             return *timer().window();
         }},
    Kind{"date",
         [](EveryWindow &) -> QWidget & {
             timer().targetTime();
             return windowWith<TargetTimeSheet>();
         }},
    Kind{"general preferences",
         [](EveryWindow &program) -> QWidget & {
             program.controller.showPreferences();
             return windowWith<QTabWidget>();
         }},
    Kind{"preferences of sounds",
         [](EveryWindow &program) -> QWidget & {
             program.controller.showPreferences();
             QWidget &window = windowWith<QTabWidget>();
             window.findChild<QTabWidget *>()->setCurrentIndex(1);
             return window;
         }},
    Kind{"converter",
         [](EveryWindow &program) -> QWidget & {
             program.controller.showConverter();
             return windowWith<NumberField>();
         }},
    Kind{"measurements",
         [](EveryWindow &program) -> QWidget & {
             program.controller.showMeasurements();
             return windowWith<MeasurementsPanel>();
         }},
    Kind{"help",
         [](EveryWindow &program) -> QWidget & {
             program.controller.showHelp();
             return windowWith<HelpBrowser>();
         }},
    Kind{"home",
         [](EveryWindow &) -> QWidget & {
             timer().window()->close();
             QCoreApplication::processEvents();
             return windowWith<HomeWindow>();
         }},
    Kind{"about", [](EveryWindow &program) -> QWidget & {
             program.controller.showAbout();
             return windowWith<AboutDialog>();
         }}};

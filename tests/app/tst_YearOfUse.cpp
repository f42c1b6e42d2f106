#include "app/HomeKeeper.h"
#include "app/WufferApplication.h"
#include "rules/TimerSettings.h"
#include "support/ChainRules.h"
#include "support/Resident.h"
#include "support/TestMain.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLoggingCategory>

#include <algorithm>

/// Runs the program for a year without a restart. Whatever the user does, in any order, timers ring
/// when they should, and closed windows leave nothing behind.
class tst_YearOfUse final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void itIsSoundOnEveryDay_data();
    void itIsSoundOnEveryDay();
};

namespace
{
constexpr int kDays = 365;
constexpr int kActsADay = 6;

/// The rules that are broken at the moment; empty if all is well.
QStringList faults(Resident &resident)
{
    QStringList faults = std::exchange(resident.witness().complaints, {});
    const auto require = [&](bool condition, const char *what) {
        if (!condition)
            faults << QString::fromLatin1(what);
    };
    const auto &users = resident.users();
    const auto is = [&](auto test) { return std::ranges::any_of(users, test); };
    const int open = int(users.size());
    require(int(WufferApplication::getWuffers().size()) == open, "closed windows leave the list");
    require(resident.livingTimers() == open, "closed timers are destroyed");
    require(HomeKeeper::openWindow() != nullptr, "at least one window is open");
    require(is([](const auto &user) { return user->timer.isRunning(); }) || resident.clock.isIdle(),
            "the clock is idle unless a timer runs");
    require(is([](const auto &user) { return user->isFullScreen(); }) ==
                resident.screenBlanking.isInhibited,
            "the screen is kept on exactly while a timer is in full screen mode");
    for (const auto &user : users) {
        require(linksAreSymmetric(user->timer), "links are symmetric");
        require(chainEndsWithin(user->timer, open), "no chain is a circle");
    }
    for (const FakeNotifications::Shown &shown : resident.notifications.standing) {
        require(is([&](const auto &user) {
                    const bool rings = user->go() == QStringLiteral("Reset");
                    return &user->timer == shown.sender && (rings || !shown.notification.stop);
                }),
                "a notification belongs to an open timer, and offers Stop only while it rings");
    }
    return faults;
}

/// The settings as another program reads them from the file.
QJsonObject settingsOnDisk(Resident &resident)
{
    resident.defaults.synchronize();
    QFile file(resident.settingsPath());
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QJsonDocument::fromJson(file.readAll()).object();
}

/// Whether the records of all timers in the settings come back unchanged when the program reads and
/// writes them.
bool recordsAreReadable(const QJsonObject &settings)
{
    QStringList keys = settings.keys();
    keys.removeIf([](const QString &key) {
        return key != QStringLiteral("defaultWufferSettings") &&
               !key.startsWith(QStringLiteral("Preset "));
    });
    return !keys.isEmpty() && std::ranges::all_of(keys, [&](const QString &key) {
        const QJsonObject written = settings.value(key).toObject();
        const QJsonObject read =
            QJsonObject::fromVariantMap(TimerSettings::fromRecord(written.toVariantMap()).record());
        return !written.isEmpty() && std::ranges::all_of(written.keys(), [&](const QString &part) {
            return read.value(part) == written.value(part);
        });
    });
}
} // namespace

void tst_YearOfUse::itIsSoundOnEveryDay_data()
{
    QTest::addColumn<quint32>("seed");
    for (const quint32 seed : {2023U, 2024U, 2025U})
        QTest::addRow("seed %u", seed) << seed;
}

void tst_YearOfUse::itIsSoundOnEveryDay()
{
    QFETCH(const quint32, seed);
    // Here a chain often finds its next timer running, and logs a warning each time.
    QLoggingCategory::setFilterRules(QStringLiteral("wuffer.warning=false"));
    Resident resident(seed);
    for (int day = 0; day < kDays; ++day) {
        for (int number = 0; number < kActsADay; ++number) {
            const char *what = resident.act();
            const QStringList wrong = faults(resident);
            QVERIFY2(wrong.isEmpty(), qPrintable(QStringLiteral("day %1, act %2, %3: %4")
                                                     .arg(day)
                                                     .arg(number)
                                                     .arg(QString::fromLatin1(what),
                                                          wrong.join(QStringLiteral("; ")))));
        }
        resident.night();
        QVERIFY2(recordsAreReadable(settingsOnDisk(resident)), qPrintable(QString::number(day)));
    }
    // The year must have been busy enough to prove something.
    const RunWitness &witness = resident.witness();
    qInfo("%d timers, %d runs, %d rings, %d beeps", resident.everOpened(), witness.runs,
          witness.rings, witness.beeps);
    QVERIFY(resident.everOpened() > 150);
    QVERIFY(witness.runs > 300);
    QVERIFY(witness.rings > 300);
    QVERIFY(witness.beeps > 0);
}

WUFFER_TEST(tst_YearOfUse)
#include "tst_YearOfUse.moc"

#include "support/ChainRules.h"
#include "support/TestMain.h"
#include "support/TimerFixture.h"

#include <QLoggingCategory>
#include <QRandomGenerator>

namespace
{
constexpr int kMostTimers = 7;
constexpr int kFewestTimers = 2;

/// A user who does random things to a few timers; one of the steps is to let time pass.
class Bystander : public TestServices
{
public:
    explicit Bystander(quint32 seed) : _random(seed)
    {
        while (_users.size() < kFewestTimers)
            open();
    }

    /// Does one random thing and returns its name.
    QString step()
    {
        constexpr int kinds = 10;
        switch (_random.bounded(kinds)) {
        case 0:
        case 1:
            return link();
        case 2:
            return unlink();
        case 3:
            return changeOption();
        case 4:
            return start();
        case 5:
            return stop();
        case 6:
        case 7:
            return finish();
        case 8:
            return mute();
        default:
            return openOrClose();
        }
    }

    [[nodiscard]] const std::vector<std::unique_ptr<TimerUser>> &users() const { return _users; }

private:
    void open() { _users.push_back(std::make_unique<TimerUser>()); }
    TimerUser &any() { return *_users.at(std::size_t(_random.bounded(int(_users.size())))); }

    QString link()
    {
        any().timer.setTargetWuffer(&any().timer);
        return QStringLiteral("link");
    }
    QString unlink()
    {
        any().timer.setTargetWuffer(nullptr);
        return QStringLiteral("unlink");
    }
    QString changeOption()
    {
        static const QStringList options{
            QStringLiteral("Do Nothing"), QStringLiteral("Loop this Wuffer"),
            QStringLiteral("Start a Preset"), QStringLiteral("Start other open Wuffer")};
        const QString &option = options.at(_random.bounded(int(options.size())));
        any().chooseFinish(option);
        return option;
    }
    QString start()
    {
        TimerUser &user = any();
        if (!user.timer.isRunning())
            user.startCountdown(_random.bounded(3));
        return QStringLiteral("start");
    }
    QString stop()
    {
        TimerUser &user = any();
        if (user.timer.isRunning()) {
            user.pressGo();
            // A stop by the user shows this until the next refresh of the chain.
            if (user.go() != QStringLiteral("Start") || !user.goButton().isEnabled())
                qFatal("a stopped timer shows %s", qPrintable(user.go()));
            user.timer.refreshChainStatusForAllChainedWuffers();
        }
        return QStringLiteral("stop");
    }
    QString finish()
    {
        clock.advance(1.1);
        sounds.endAll();
        clock.advance(0.3);
        return QStringLiteral("finish");
    }
    QString mute()
    {
        const QString key = QStringLiteral("soundOff");
        defaults.setObject(int(!defaults.boolForKey(key)), key);
        NotificationCenter::defaultCenter().postNotificationName(
            QStringLiteral("prefsChangedNotification"));
        return QStringLiteral("mute");
    }
    QString openOrClose()
    {
        const auto count = int(_users.size());
        if (count < kMostTimers && (count == kFewestTimers || _random.bounded(2) == 0)) {
            open();
            return QStringLiteral("open");
        }
        const auto place = _users.begin() + _random.bounded(count);
        (*place)->timer.window()->close();
        _users.erase(place);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return QStringLiteral("close");
    }

    QRandomGenerator _random;
    std::vector<std::unique_ptr<TimerUser>> _users;
};

bool showsItsState(const TimerUser &user)
{
    if (user.timer.isRunning()) {
        return user.goButton().isEnabled() &&
               (user.go() == QStringLiteral("Stop") || user.go() == QStringLiteral("Reset"));
    }
    const bool isHead = user.timer.getTargetingWuffer() == nullptr;
    if (user.goButton().isEnabled() != isHead)
        return false;
    if (!user.timer.isChained()) {
        return user.go() == QStringLiteral("Start") &&
               !user.elapsed().contains(QStringLiteral("Chain"));
    }
    return user.go() == (isHead ? QStringLiteral("Start Chain") : QStringLiteral("Chained")) &&
           user.elapsed() == user.timer.chainString() &&
           user.elapsedColor() == QColor::fromRgbF(0.9F, 0, 0);
}

bool aLinkIsTheFinishAction(const TimerUser &user)
{
    return !user.timer.getTargetWuffer() ||
           user.finish() == QStringLiteral("Start other open Wuffer");
}
} // namespace

/// Whatever the user does to a few timers, in any order, their chains stay valid.
class tst_ChainInvariants final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void chainsStayValidWhateverHappens_data();
    void chainsStayValidWhateverHappens();
};

void tst_ChainInvariants::chainsStayValidWhateverHappens_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 8; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

void tst_ChainInvariants::chainsStayValidWhateverHappens()
{
    constexpr int steps = 3000;
    QFETCH(const quint32, seed);
    // Here a chain often finds its next timer running, and logs a warning each time.
    QLoggingCategory::setFilterRules(QStringLiteral("wuffer.warning=false"));
    Bystander bystander(seed);
    int longest = 0;
    for (int number = 0; number < steps; ++number) {
        const QString what = bystander.step();
        const auto fails = [&](const char *invariant) {
            return QStringLiteral("step %1, %2: %3")
                .arg(number)
                .arg(what, QString::fromLatin1(invariant))
                .toUtf8();
        };
        for (const std::unique_ptr<TimerUser> &user : bystander.users()) {
            QVERIFY2(linksAreSymmetric(user->timer), fails("links are symmetric").constData());
            QVERIFY2(chainEndsWithin(user->timer, kMostTimers),
                     fails("no chain is a circle").constData());
            QVERIFY2(showsItsState(*user), fails("a member shows its state").constData());
            QVERIFY2(aLinkIsTheFinishAction(*user),
                     fails("a link is the finish action").constData());
            longest = std::max(longest, int(user->timer.chainedWuffers().size()));
        }
    }
    // The steps must have built long chains, or the test has shown little.
    QVERIFY(longest >= 4);
}

WUFFER_TEST(tst_ChainInvariants)
#include "tst_ChainInvariants.moc"

#include "platform/linux/DBusMenuTypes.h"
#include "platform/linux/FreedesktopStatusItem.h"
#include "platform/linux/StatusNotifierTypes.h"
#include "support/BusPeer.h"
#include "support/ClockFixture.h"
#include "support/Fakes.h"
#include "support/PrivateBus.h"
#include "support/RoundTrip.h"
#include "support/StatusWatcher.h"
#include "support/TestMain.h"

#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusObjectPath>
#include <QDir>
#include <QElapsedTimer>
#include <QMenu>
#include <QTemporaryDir>

#include <optional>

namespace
{
const QString kItem = QStringLiteral("org.kde.StatusNotifierItem");
const QString kPath = QStringLiteral("/StatusNotifierItem");
const QString kMenu = QStringLiteral("com.canonical.dbusmenu");

QIcon image()
{
    QPixmap pixmap(22, 22);
    pixmap.fill(Qt::green);
    return pixmap;
}

StatusTitle title(const char *text, const QColor &color = Qt::black)
{
    return {QString::fromUtf8(text), color};
}

QString toolTipIn(BusPeer &panel)
{
    return qdbus_cast<StatusNotifier::ToolTip>(panel.property(QStringLiteral("ToolTip"))).title;
}

/// The panel reports an event of a line of its menu; 0 is the menu itself.
void tellMenu(BusPeer &menu, int line, const char *event)
{
    menu.tell(QStringLiteral("Event"),
              {line, QString::fromLatin1(event), QVariant::fromValue(QDBusVariant(QString())), 0U});
}

/// The unique name of the owner; empty if the name has none.
QString ownerOf(const QString &name)
{
    return QDBusConnection::sessionBus().interface()->serviceOwner(name).value();
}
} // namespace

/// Runs on a private session bus, where the test plays the panel.
class tst_FreedesktopStatusItem final : public Test
{
    Q_OBJECT

public:
    explicit tst_FreedesktopStatusItem(const OnPrivateBus &surroundings) :
        _address(surroundings.bus().address())
    {}

private Q_SLOTS:
    void initTestCase() { StatusNotifier::registerTypes(); }
    void init();
    void cleanup();
    void theItemRegistersUnderANameOfItsOwn();
    void anEmptyItemIsNotRegistered();
    void anEmptiedItemGivesItsNameUp();
    void anItemThatShowsAgainAtOnceKeepsItsName();
    void theItemRegistersEachTimeItShows();
    void theItemRegistersWithEveryWatcherThatComes();
    void theItemRegistersWithAWatcherThatTakesTheNameOver();
    void aPanelThatIsReplacedHasNoMenuOpen();
    void theItemSaysWhatItIs();
    void anEmptyItemIsPassive();
    void theTitleIsLabelAndToolTip();
    void theIconIsSquareInTheSizesOfPanels();
    void thePixelsAreAlphaFirst();
    void thereIsAMenuOnlyWhileOneIsAttached();
    void panelsThatReadThePathOfTheMenuOnceGetItsLines();
    void theToolTipRestsWhileTheListIsInView();
    void theToolTipGoesOnTenSecondsAfterAPanelThatDoesNotSayWhenTheListCloses();
    void anOpenMenuStaysUntilItCloses();
    void aPressSendsTheAction();
    void aPressWithAMenuShowsItForPanelsThatCannot();
    void theMiddleButtonAndTheWheelDoNothing();
    void onlyChangesAreSignalled_data();
    void onlyChangesAreSignalled();
    void manyChangesAtOnceAreSignalledOnce();
    void theNewLabelComesWithItsSignal();
    void withoutAWatcherNothingIsSignalled();
    void aWatcherThatComesLateGetsWhatIsShown();
    void aMissingBusIsHarmless();

private:
    /// Starts a watcher, and waits until the item knows it.
    void watch()
    {
        _watcher.emplace(_address);
        settleWithBus();
        QCOMPARE(_watcher->registered.size(), _item->isEmpty() ? 0 : 1);
    }
    /// Starts a watcher, with which an item that is shown registers.
    void watchShown()
    {
        _item->setAttributedTitle(title("5m 3s "));
        watch();
    }
    [[nodiscard]] BusPeer panel() const { return {_address, kPath, kItem}; }

    const QString _address;
    std::optional<ClockFixture> _fixture;
    std::optional<StatusWatcher> _watcher;
    std::optional<FreedesktopStatusItem> _item;
};

void tst_FreedesktopStatusItem::init()
{
    Test::init();
    _fixture.emplace();
    _item.emplace();
}

void tst_FreedesktopStatusItem::cleanup()
{
    _item.reset();
    _watcher.reset();
    _fixture.reset();
}

void tst_FreedesktopStatusItem::theItemRegistersUnderANameOfItsOwn()
{
    watchShown();
    const QString name = _watcher->registered.constFirst();
    QVERIFY(name.startsWith(QLatin1String("org.wuffer.Wuffer.StatusItem-")));
    QCOMPARE(ownerOf(name), QDBusConnection::sessionBus().baseService());
}

void tst_FreedesktopStatusItem::anEmptyItemIsNotRegistered()
{
    watch();
    QCOMPARE(_watcher->registered, QStringList());
    // A menu alone shows nothing.
    FakeStatusMenu menu;
    _item->setMenu(&menu);
    settleWithBus();
    QCOMPARE(_watcher->registered, QStringList());
}

void tst_FreedesktopStatusItem::anEmptiedItemGivesItsNameUp()
{
    watchShown();
    BusPeer peer = panel();
    const QString name = _watcher->registered.constFirst();
    _item->setTitle({});
    QTRY_COMPARE(ownerOf(name), QString());
    // The panel has read all changes before.
    QCOMPARE(_watcher->ownedWhenAsked, QList<bool>{true});
    // Panels that heed the status know first.
    QVERIFY(peer.takeNames().contains(QStringLiteral("NewStatus")));
}

void tst_FreedesktopStatusItem::anItemThatShowsAgainAtOnceKeepsItsName()
{
    watchShown();
    BusPeer peer = panel();
    _item->setTitle({});
    QTRY_VERIFY(peer.hasHeardSomething());
    _item->setAttributedTitle(title("5m 3s "));
    settleWithBus();
    QCOMPARE(ownerOf(_watcher->registered.constLast()),
             QDBusConnection::sessionBus().baseService());
}

void tst_FreedesktopStatusItem::theItemRegistersEachTimeItShows()
{
    watchShown();
    for (qsizetype times = 2; times < 5; ++times) {
        _item->setTitle({});
        settleWithBus();
        _item->setAttributedTitle(title("5m 3s "));
        QTRY_COMPARE(_watcher->registered.size(), times);
        QVERIFY(!ownerOf(_watcher->registered.constLast()).isEmpty());
    }
}

void tst_FreedesktopStatusItem::theItemRegistersWithEveryWatcherThatComes()
{
    watchShown();
    for (int i = 0; i < 3; ++i) {
        _watcher.reset();
        settleWithBus();
        watch();
    }
}

void tst_FreedesktopStatusItem::theItemRegistersWithAWatcherThatTakesTheNameOver()
{
    watchShown();
    const StatusWatcher next(_address, StatusWatcher::Next);
    const QStringList registered = _watcher->registered;
    _watcher.reset();
    QTRY_COMPARE(next.registered, registered);
}

void tst_FreedesktopStatusItem::theItemSaysWhatItIs()
{
    watch();
    BusPeer peer = panel();
    QCOMPARE(peer.property(QStringLiteral("Id")), QStringLiteral("wuffer"));
    QCOMPARE(peer.property(QStringLiteral("Category")), QStringLiteral("ApplicationStatus"));
    QCOMPARE(peer.property(QStringLiteral("XAyatanaOrderingIndex")).toUInt(), 0U);
}

void tst_FreedesktopStatusItem::anEmptyItemIsPassive()
{
    watch();
    BusPeer peer = panel();
    const auto status = [&] { return peer.property(QStringLiteral("Status")).toString(); };
    QCOMPARE(status(), QStringLiteral("Passive"));
    QCOMPARE(peer.property(QStringLiteral("XAyatanaLabel")), QString());
    _item->setAttributedTitle(title("5s "));
    QTRY_COMPARE(status(), QStringLiteral("Active"));
    _item->setImage(image());
    _item->setTitle({});
    QTRY_COMPARE(peer.property(QStringLiteral("XAyatanaLabel")), QString());
    QCOMPARE(status(), QStringLiteral("Active"));
    _item->setImage({});
    QTRY_COMPARE(status(), QStringLiteral("Passive"));
}

void tst_FreedesktopStatusItem::theTitleIsLabelAndToolTip()
{
    watch();
    BusPeer peer = panel();
    _item->setAttributedTitle(title("5m 3s "));
    QTRY_COMPARE(peer.property(QStringLiteral("XAyatanaLabel")), QStringLiteral("5m 3s "));
    const QString program = QGuiApplication::applicationDisplayName();
    // Panels keep lists of items by their titles.
    QCOMPARE(peer.property(QStringLiteral("Title")), program);
    const auto toolTip =
        qdbus_cast<StatusNotifier::ToolTip>(peer.property(QStringLiteral("ToolTip")));
    QCOMPARE(toolTip.title, QString(program + QStringLiteral(": 5m 3s")));
    QCOMPARE(toolTip.text, QString());
}

void tst_FreedesktopStatusItem::theIconIsSquareInTheSizesOfPanels()
{
    watch();
    BusPeer peer = panel();
    const auto pixmaps = [&] {
        return qdbus_cast<StatusNotifier::Pixmaps>(peer.property(QStringLiteral("IconPixmap")));
    };
    QVERIFY(pixmaps().isEmpty());
    _item->setImage(image());
    _item->setAttributedTitle(title("5m 3s "));
    QTRY_VERIFY(!pixmaps().isEmpty());
    QList<int> sizes;
    for (const StatusNotifier::Pixmap &pixmap : pixmaps()) {
        QCOMPARE(pixmap.width, pixmap.height);
        QCOMPARE(pixmap.pixels.size(), qsizetype(4) * pixmap.width * pixmap.height);
        sizes << pixmap.width;
    }
    QCOMPARE(sizes, (QList<int>{16, 22, 24, 32, 44, 48}));
}

void tst_FreedesktopStatusItem::thePixelsAreAlphaFirst()
{
    watch();
    BusPeer peer = panel();
    QPixmap pixmap(48, 48);
    pixmap.fill(QColor(0x12, 0x34, 0x56));
    _item->setImage(pixmap);
    const auto pixmaps = [&] {
        return qdbus_cast<StatusNotifier::Pixmaps>(peer.property(QStringLiteral("IconPixmap")));
    };
    QTRY_VERIFY(!pixmaps().isEmpty());
    const QByteArray pixels = pixmaps().last().pixels;
    constexpr qsizetype middle = qsizetype{4} * 48 * 24 + qsizetype{4} * 24;
    QCOMPARE(pixels.mid(middle, 4), QByteArray("\xff\x12\x34\x56"));
}

void tst_FreedesktopStatusItem::thereIsAMenuOnlyWhileOneIsAttached()
{
    watch();
    BusPeer peer = panel();
    const auto path = [&] {
        return peer.property(QStringLiteral("Menu")).value<QDBusObjectPath>().path();
    };
    _item->setAttributedTitle(title("5s "));
    QCOMPARE(path(), QStringLiteral("/NO_DBUSMENU"));
    QCOMPARE(peer.property(QStringLiteral("ItemIsMenu")), QVariant(false));
    FakeStatusMenu menu;
    _item->setMenu(&menu);
    QTRY_COMPARE(path(), QStringLiteral("/StatusNotifierItem/Menu"));
    QCOMPARE(peer.property(QStringLiteral("ItemIsMenu")), QVariant(true));
    _item->setMenu(nullptr);
    QTRY_COMPARE(path(), QStringLiteral("/NO_DBUSMENU"));
    QCOMPARE(peer.property(QStringLiteral("ItemIsMenu")), QVariant(false));
}

void tst_FreedesktopStatusItem::panelsThatReadThePathOfTheMenuOnceGetItsLines()
{
    watchShown();
    const QString firstPath =
        panel().property(QStringLiteral("Menu")).value<QDBusObjectPath>().path();
    BusPeer shownMenu(_address, firstPath, kMenu);
    FakeStatusMenu menu;
    menu.current = {{1, QStringLiteral("a")}, {2, QStringLiteral("b")}};
    _item->setMenu(&menu);
    QTRY_VERIFY(shownMenu.hasHeardSomething());
    QCOMPARE(shownMenu.takeNames(), QStringList{QStringLiteral("LayoutUpdated")});
    const QDBusMessage layout = shownMenu.ask(QStringLiteral("GetLayout"), {0, -1, QStringList()});
    QCOMPARE(layout.signature(), QStringLiteral("u(ia{sv}av)"));
    const auto lines = qdbus_cast<DBusMenuTypes::Layout>(layout.arguments().constLast());
    QCOMPARE(lines.children.size(), 2);
    tellMenu(shownMenu, 2, "clicked");
    QCOMPARE(menu.chosen, (std::vector<int>{2}));
}

void tst_FreedesktopStatusItem::aPressSendsTheAction()
{
    watch();
    BusPeer peer = panel();
    QObject target;
    int presses = 0;
    _item->setTarget(&target, [&] { ++presses; });
    peer.tell(QStringLiteral("Activate"), {100, 20});
    QCOMPARE(presses, 1);
    peer.tell(QStringLiteral("ContextMenu"), {100, 20});
    QCOMPARE(presses, 1);
}

void tst_FreedesktopStatusItem::aPressWithAMenuShowsItForPanelsThatCannot()
{
    watch();
    BusPeer peer = panel();
    QObject target;
    _item->setTarget(&target, [] { qFatal("the action is not for an item with a menu"); });
    FakeStatusMenu menu;
    menu.current = {{1, QStringLiteral("a & b")}, {2, QStringLiteral("c")}};
    _item->setMenu(&menu);
    for (const char *method : {"Activate", "ContextMenu"}) {
        peer.tell(QString::fromLatin1(method), {100, 20});
        auto *popup = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        QVERIFY(popup);
        QCOMPARE(popup->actions().constFirst()->text(), QStringLiteral("a && b"));
        menu.current[1].text = QStringLiteral("d");
        Q_EMIT menu.textsChanged();
        QCOMPARE(popup->actions().constLast()->text(), QStringLiteral("d"));
        popup->actions().constLast()->trigger();
        popup->close();
    }
    QCOMPARE(menu.chosen, (std::vector<int>{2, 2}));
}

void tst_FreedesktopStatusItem::theMiddleButtonAndTheWheelDoNothing()
{
    watch();
    BusPeer peer = panel();
    QObject target;
    _item->setTarget(&target, [] { qFatal("the action is for the left button"); });
    peer.tell(QStringLiteral("SecondaryActivate"), {1, 2});
    peer.tell(QStringLiteral("Scroll"), {3, QStringLiteral("vertical")});
    peer.tell(QStringLiteral("ProvideXdgActivationToken"), {QStringLiteral("token")});
    QVERIFY(!qEnvironmentVariableIsSet("XDG_ACTIVATION_TOKEN"));
}

void tst_FreedesktopStatusItem::onlyChangesAreSignalled_data()
{
    using Change = std::function<void(StatusItem &)>;
    QTest::addColumn<Change>("change");
    QTest::addColumn<QStringList>("said");
    const auto row = [](const char *name, const Change &change, const char *said) {
        QTest::newRow(name) << change
                            << QString::fromLatin1(said).split(QLatin1Char(' '),
                                                               Qt::SkipEmptyParts);
    };
    row(
        "nothing", [](StatusItem &item) { item.setAttributedTitle(title("5m 3s ")); }, "");
    row(
        "there and back",
        [](StatusItem &item) {
            item.setTitle({});
            item.setAttributedTitle(title("5m 3s "));
        },
        "");
    row(
        "a second later", [](StatusItem &item) { item.setAttributedTitle(title("5m 2s ")); },
        "NewToolTip XAyatanaNewLabel");
    row(
        "a minute later", [](StatusItem &item) { item.setAttributedTitle(title("4m 2s ")); },
        "NewIcon NewToolTip XAyatanaNewLabel");
    row(
        "another colour",
        [](StatusItem &item) { item.setAttributedTitle(title("5m 3s ", Qt::red)); }, "NewIcon");
    row(
        "emptied",
        [](StatusItem &item) {
            item.setImage({});
            item.setTitle({});
        },
        "NewIcon NewStatus NewToolTip XAyatanaNewLabel");
    row(
        "a target", [](StatusItem &item) { item.setTarget(qApp, [] {}); }, "");
    static FakeStatusMenu menu;
    row(
        "a menu", [](StatusItem &item) { item.setMenu(&menu); }, "NewMenu");
}

void tst_FreedesktopStatusItem::onlyChangesAreSignalled()
{
    QFETCH(const std::function<void(StatusItem &)>, change);
    _item->setImage(image());
    _item->setAttributedTitle(title("5m 3s "));
    watch();
    BusPeer peer = panel();
    static_cast<void>(peer.takeNames());
    change(*_item);
    QTEST(peer.takeNames(), "said");
}

void tst_FreedesktopStatusItem::manyChangesAtOnceAreSignalledOnce()
{
    watch();
    BusPeer peer = panel();
    for (int i = 0; i < 200; ++i) {
        _item->setImage(image());
        _item->setAttributedTitle(title(qPrintable(QStringLiteral("%1s ").arg(i))));
    }
    QCOMPARE(peer.takeNames().size(), 4);
}

void tst_FreedesktopStatusItem::theNewLabelComesWithItsSignal()
{
    watch();
    BusPeer peer = panel();
    _item->setAttributedTitle(title("5m 3s "));
    QVariantList arguments;
    for (const QDBusMessage &signal : peer.takeHeard()) {
        if (signal.member() == QLatin1String("XAyatanaNewLabel"))
            arguments = signal.arguments();
    }
    QCOMPARE(arguments, (QVariantList{QStringLiteral("5m 3s "), QString()}));
}

void tst_FreedesktopStatusItem::withoutAWatcherNothingIsSignalled()
{
    BusPeer peer = panel();
    _item->setAttributedTitle(title("5m 3s "));
    QCOMPARE(peer.takeNames(), QStringList());
}

void tst_FreedesktopStatusItem::aWatcherThatComesLateGetsWhatIsShown()
{
    _item->setAttributedTitle(title("5m 3s "));
    settleWithBus();
    watch();
    BusPeer peer = panel();
    QCOMPARE(peer.property(QStringLiteral("XAyatanaLabel")), QStringLiteral("5m 3s "));
    QCOMPARE(peer.property(QStringLiteral("Status")), QStringLiteral("Active"));
}

void tst_FreedesktopStatusItem::aMissingBusIsHarmless()
{
    const QTemporaryDir nowhere;
    _item.reset();
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    qputenv("XDG_RUNTIME_DIR", nowhere.path().toUtf8());
    _item.emplace();
    _item->setAttributedTitle(title("5m 3s "));
    settleWithBus();
    _item->setTitle({});
    settleWithBus();
    QCOMPARE(QDir(nowhere.path()).entryList(QDir::NoDotAndDotDot | QDir::AllEntries),
             QStringList());
    qputenv("DBUS_SESSION_BUS_ADDRESS", _address.toUtf8());
}

void tst_FreedesktopStatusItem::theToolTipRestsWhileTheListIsInView()
{
    watchShown();
    BusPeer peer = panel();
    BusPeer shownMenu(_address, kPath + QStringLiteral("/Menu"), kMenu);
    FakeStatusMenu menu;
    menu.current = {{1, QStringLiteral("a")}};
    _item->setMenu(&menu);
    for (const char *closing : {"closed", "clicked"}) {
        static_cast<void>(shownMenu.ask(QStringLiteral("AboutToShow"), {0}));
        static_cast<void>(peer.takeNames());
        _item->setAttributedTitle(title("5m 2s "));
        QCOMPARE(peer.takeNames(), QStringList{QStringLiteral("XAyatanaNewLabel")});
        QCOMPARE(toolTipIn(peer), QStringLiteral("Wuffer: 5m 3s"));
        tellMenu(shownMenu, 0, "opened");
        tellMenu(shownMenu, 0, closing);
        QTRY_COMPARE(toolTipIn(peer), QStringLiteral("Wuffer: 5m 2s"));
        _item->setAttributedTitle(title("5m 3s "));
        QTRY_COMPARE(toolTipIn(peer), QStringLiteral("Wuffer: 5m 3s"));
    }
}

void tst_FreedesktopStatusItem::
    theToolTipGoesOnTenSecondsAfterAPanelThatDoesNotSayWhenTheListCloses()
{
    watchShown();
    BusPeer peer = panel();
    BusPeer shownMenu(_address, kPath + QStringLiteral("/Menu"), kMenu);
    FakeStatusMenu menu;
    _item->setMenu(&menu);
    settleWithBus();
    static_cast<void>(shownMenu.ask(QStringLiteral("AboutToShow"), {0}));
    _item->setAttributedTitle(title("5m 2s "));
    _fixture->clock.advance(9.9);
    settleWithBus();
    QCOMPARE(toolTipIn(peer), QStringLiteral("Wuffer: 5m 3s"));
    _fixture->clock.advance(0.2);
    QTRY_COMPARE(toolTipIn(peer), QStringLiteral("Wuffer: 5m 2s"));
}

void tst_FreedesktopStatusItem::anOpenMenuStaysUntilItCloses()
{
    watch();
    BusPeer peer = panel();
    BusPeer shownMenu(_address, kPath + QStringLiteral("/Menu"), kMenu);
    const auto isMenu = [&] { return peer.property(QStringLiteral("ItemIsMenu")).toBool(); };
    FakeStatusMenu menu;
    _item->setMenu(&menu);
    QTRY_VERIFY(isMenu());
    tellMenu(shownMenu, 0, "opened");
    _item->setMenu(nullptr);
    settleWithBus();
    QVERIFY(isMenu());
    tellMenu(shownMenu, 0, "closed");
    QTRY_VERIFY(!isMenu());
}

void tst_FreedesktopStatusItem::aPanelThatIsReplacedHasNoMenuOpen()
{
    watchShown();
    BusPeer shownMenu(_address, kPath + QStringLiteral("/Menu"), kMenu);
    BusPeer peer = panel();
    FakeStatusMenu menu;
    _item->setMenu(&menu);
    tellMenu(shownMenu, 0, "opened");
    const StatusWatcher next(_address, StatusWatcher::Next);
    _watcher.reset();
    QTRY_COMPARE(next.registered.size(), 1);
    _item->setMenu(nullptr);
    QTRY_VERIFY(!peer.property(QStringLiteral("ItemIsMenu")).toBool());
}

WUFFER_TEST(tst_FreedesktopStatusItem, OnPrivateBus)
#include "tst_FreedesktopStatusItem.moc"

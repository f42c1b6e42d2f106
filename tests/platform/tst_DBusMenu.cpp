#include "platform/linux/DBusMenu.h"
#include "support/BusPeer.h"
#include "support/ClockFixture.h"
#include "support/Fakes.h"
#include "support/PrivateBus.h"
#include "support/TestMain.h"

#include <optional>

namespace
{
const QString kInterface = QStringLiteral("com.canonical.dbusmenu");
const QString kPath = QStringLiteral("/Menu");
const QString kOpened = QStringLiteral("opened");
const QString kClosed = QStringLiteral("closed");
const QString kClicked = QStringLiteral("clicked");

QStringList labels(const DBusMenuTypes::Layout &layout)
{
    QStringList texts;
    for (const DBusMenuTypes::Layout &child : layout.children)
        texts << child.properties.value(QStringLiteral("label")).toString();
    return texts;
}

QStringList labels(const DBusMenuTypes::Items &items)
{
    QStringList texts;
    for (const DBusMenuTypes::Item &item : items)
        texts << item.properties.value(QStringLiteral("label")).toString();
    return texts;
}
} // namespace

/// Runs on a private session bus, where the test plays the panel that shows the menu.
class tst_DBusMenu final : public Test
{
    Q_OBJECT

public:
    explicit tst_DBusMenu(const OnPrivateBus &surroundings) : _address(surroundings.bus().address())
    {}

private Q_SLOTS:
    void initTestCase() { DBusMenuTypes::registerAll(); }
    void init();
    void cleanup();
    void theLayoutIsTheListOfLines();
    void theLayoutIsAsDeepAsAskedFor_data();
    void theLayoutIsAsDeepAsAskedFor();
    void aLineHasItsOwnLayout();
    void onlyThePropertiesAskedForAreSent();
    void anUnderscoreIsNoMnemonic();
    void groupsOfPropertiesAreSent();
    void aSinglePropertyIsSent();
    void theProtocolsPropertiesAreThere();
    void aClickChoosesTheLine();
    void anythingElseChoosesNothing();
    void eventsComeInGroups();
    void otherLinesAreANewLayout();
    void aGroupThatIsAboutToShowIsToldWhatHasChanged();
    void ofManyChangesAtOnceThereIsOneLayout();
    void otherTextsSayNothingWhileTheMenuIsClosed();
    void aPanelThatIsAboutToShowItGetsTheTexts();
    void anOpenMenuFollowsTheTexts();
    void anOpenMenuFollowsTextsThatKeepChanging();
    void anOpenMenuKeepsItsLinesUntilItCloses();
    void anOpenMenuThatLosesItsListStillChooses();
    void aClickClosesTheMenu();
    void closingIsReportedOnce();
    void aPanelThatIsGoneHasItOpenNoLonger();
    void aListThatIsGoneLeavesAnEmptyMenu();
    void twoHundredLinesCostOneSignal();

private:
    [[nodiscard]] DBusMenuTypes::Layout layout(int parent = 0, int depth = -1,
                                               const QStringList &names = {})
    {
        const QDBusMessage answer = _peer->ask(QStringLiteral("GetLayout"), {parent, depth, names});
        _revision = answer.arguments().value(0).toUInt();
        return qdbus_cast<DBusMenuTypes::Layout>(answer.arguments().value(1));
    }
    void event(int id, const QString &name)
    {
        _peer->tell(QStringLiteral("Event"),
                    {id, name, QVariant::fromValue(QDBusVariant(QString())), 0U});
    }
    [[nodiscard]] bool aboutToShow(int id = 0)
    {
        return _peer->ask(QStringLiteral("AboutToShow"), {id}).arguments().constFirst().toBool();
    }
    void setTexts(const QStringList &texts)
    {
        _list->current.clear();
        for (int i = 0; i < texts.size(); ++i)
            _list->current.push_back({i + 1, texts[i]});
        Q_EMIT _list->textsChanged();
    }

    const QString _address;
    std::optional<ClockFixture> _fixture;
    std::optional<FakeStatusMenu> _list;
    std::optional<DBusMenu> _menu;
    std::optional<BusPeer> _peer;
    uint _revision = 0;
    int _closings = 0;
};

void tst_DBusMenu::init()
{
    Test::init();
    _fixture.emplace();
    _closings = 0;
    _list.emplace();
    _list->current = {{7, QStringLiteral("Tea: 5s")}, {3, QStringLiteral("Eggs: 1m 5s")}};
    _menu.emplace([this] { ++_closings; });
    QDBusConnection::sessionBus().registerObject(kPath, &*_menu,
                                                 QDBusConnection::ExportAllSlots |
                                                     QDBusConnection::ExportAllSignals |
                                                     QDBusConnection::ExportAllProperties);
    _menu->setMenu(&*_list);
    _peer.emplace(_address, kPath, kInterface);
    static_cast<void>(_peer->takeHeard());
}

void tst_DBusMenu::cleanup()
{
    _peer.reset();
    _menu.reset();
    _list.reset();
    _fixture.reset();
}

void tst_DBusMenu::theLayoutIsTheListOfLines()
{
    const DBusMenuTypes::Layout root = layout();
    QCOMPARE(root.id, 0);
    QCOMPARE(root.properties.value(QStringLiteral("children-display")), QStringLiteral("submenu"));
    QCOMPARE(labels(root), (QStringList{QStringLiteral("Tea: 5s"), QStringLiteral("Eggs: 1m 5s")}));
    QCOMPARE(root.children[0].id, 7);
    QCOMPARE(root.children[1].id, 3);
    QVERIFY(_revision > 0);
}

void tst_DBusMenu::theLayoutIsAsDeepAsAskedFor_data()
{
    QTest::addColumn<int>("depth");
    QTest::addColumn<int>("lines");
    QTest::newRow("all") << -1 << 2;
    QTest::newRow("the root") << 0 << 0;
    QTest::newRow("one level") << 1 << 2;
    QTest::newRow("two levels") << 2 << 2;
}

void tst_DBusMenu::theLayoutIsAsDeepAsAskedFor()
{
    QFETCH(const int, depth);
    QTEST(int(layout(0, depth).children.size()), "lines");
}

void tst_DBusMenu::aLineHasItsOwnLayout()
{
    const DBusMenuTypes::Layout line = layout(3);
    QCOMPARE(line.id, 3);
    QCOMPARE(line.properties.value(QStringLiteral("label")), QStringLiteral("Eggs: 1m 5s"));
    QVERIFY(line.children.isEmpty());
    QVERIFY(layout(99).properties.isEmpty());
}

void tst_DBusMenu::onlyThePropertiesAskedForAreSent()
{
    const DBusMenuTypes::Layout root = layout(0, -1, {QStringLiteral("label")});
    QVERIFY(root.properties.isEmpty());
    QCOMPARE(labels(root).constFirst(), QStringLiteral("Tea: 5s"));
    QVERIFY(layout(0, -1, {QStringLiteral("icon-name")}).children[0].properties.isEmpty());
}

void tst_DBusMenu::anUnderscoreIsNoMnemonic()
{
    setTexts({QStringLiteral("a_b & c")});
    QCOMPARE(labels(layout()), QStringList{QStringLiteral("a__b & c")});
}

void tst_DBusMenu::groupsOfPropertiesAreSent()
{
    const auto group = [&](const QList<int> &ids) {
        const QDBusMessage answer = _peer->ask(QStringLiteral("GetGroupProperties"),
                                               {QVariant::fromValue(ids), QStringList()});
        return labels(qdbus_cast<DBusMenuTypes::Items>(answer.arguments().constFirst()));
    };
    QCOMPARE(group({3, 99}), QStringList{QStringLiteral("Eggs: 1m 5s")});
    QCOMPARE(group({}).size(), 3);
}

void tst_DBusMenu::aSinglePropertyIsSent()
{
    const auto property = [&](int id, const char *name) {
        return _peer->ask(QStringLiteral("GetProperty"), {id, QString::fromLatin1(name)})
            .arguments()
            .constFirst()
            .value<QDBusVariant>()
            .variant();
    };
    QCOMPARE(property(7, "label"), QStringLiteral("Tea: 5s"));
    QCOMPARE(property(7, "nonsense"), QString());
    QCOMPARE(property(99, "label"), QString());
}

void tst_DBusMenu::theProtocolsPropertiesAreThere()
{
    QCOMPARE(_peer->property(QStringLiteral("Version")).toUInt(), 3U);
    QCOMPARE(_peer->property(QStringLiteral("Status")), QStringLiteral("normal"));
    QCOMPARE(_peer->property(QStringLiteral("TextDirection")), QStringLiteral("ltr"));
    QCOMPARE(_peer->property(QStringLiteral("IconThemePath")).toStringList(), QStringList());
}

void tst_DBusMenu::aClickChoosesTheLine()
{
    static_cast<void>(layout());
    event(3, kClicked);
    QCOMPARE(_list->chosen, std::vector<int>{3});
}

void tst_DBusMenu::anythingElseChoosesNothing()
{
    static_cast<void>(layout());
    event(3, QStringLiteral("hovered"));
    event(99, kClicked);
    event(0, kClicked);
    event(-1, QString());
    QVERIFY(_list->chosen.empty());
}

void tst_DBusMenu::eventsComeInGroups()
{
    static_cast<void>(layout());
    const QDBusVariant none{QString()};
    const DBusMenuTypes::Events events{
        {0, kOpened, none, 0}, {99, kClicked, none, 0}, {7, kClicked, none, 0}};
    const QDBusMessage answer =
        _peer->ask(QStringLiteral("EventGroup"), {QVariant::fromValue(events)});
    QCOMPARE(qdbus_cast<QList<int>>(answer.arguments().constFirst()), QList<int>{99});
    QCOMPARE(_list->chosen, std::vector<int>{7});
    const QDBusMessage shown =
        _peer->ask(QStringLiteral("AboutToShowGroup"), {QVariant::fromValue(QList<int>{0, 98})});
    QCOMPARE(qdbus_cast<QList<int>>(shown.arguments().value(1)), QList<int>{98});
}

void tst_DBusMenu::otherLinesAreANewLayout()
{
    static_cast<void>(layout());
    const uint before = _revision;
    _list->current.push_back({9, QStringLiteral("Cake: 9s")});
    Q_EMIT _list->linesChanged();
    const QList<QDBusMessage> heard = _peer->takeHeard();
    QCOMPARE(heard.size(), 1);
    QCOMPARE(heard.first().member(), QStringLiteral("LayoutUpdated"));
    QVERIFY(heard.first().arguments().constFirst().toUInt() > before);
    QCOMPARE(layout().children.size(), 3);
    QCOMPARE(_revision, heard.first().arguments().constFirst().toUInt());
    QCOMPARE(_peer->takeNames(), QStringList());
}

void tst_DBusMenu::ofManyChangesAtOnceThereIsOneLayout()
{
    for (int i = 0; i < 200; ++i) {
        _list->current.push_back({100 + i, QStringLiteral("Cake")});
        Q_EMIT _list->linesChanged();
    }
    QCOMPARE(_peer->takeNames(), QStringList{QStringLiteral("LayoutUpdated")});
}

void tst_DBusMenu::otherTextsSayNothingWhileTheMenuIsClosed()
{
    static_cast<void>(layout());
    _list->timesAsked = 0;
    for (int i = 0; i < 1000; ++i)
        Q_EMIT _list->textsChanged();
    QTest::qWait(150);
    QCOMPARE(_peer->takeNames(), QStringList());
    QCOMPARE(_list->timesAsked, 0);
}

void tst_DBusMenu::aPanelThatIsAboutToShowItGetsTheTexts()
{
    static_cast<void>(layout());
    QVERIFY(!aboutToShow());
    _list->current[0].text = QStringLiteral("Tea: 4s");
    Q_EMIT _list->textsChanged();
    QVERIFY(aboutToShow());
    const QList<QDBusMessage> heard = _peer->takeHeard();
    QCOMPARE(heard.size(), 1);
    QCOMPARE(heard.first().member(), QStringLiteral("ItemsPropertiesUpdated"));
    const auto items = qdbus_cast<DBusMenuTypes::Items>(heard.first().arguments().constFirst());
    QCOMPARE(labels(items), QStringList{QStringLiteral("Tea: 4s")});
    QCOMPARE(items.first().id, 7);
    QVERIFY(!aboutToShow());
    QVERIFY(!aboutToShow(7));
}

void tst_DBusMenu::anOpenMenuFollowsTheTexts()
{
    static_cast<void>(layout());
    event(0, kOpened);
    _list->current[1].text = QStringLiteral("Eggs: 1m 4s");
    Q_EMIT _list->textsChanged();
    QTRY_VERIFY(_peer->hasHeardSomething());
    QCOMPARE(_peer->takeNames(), QStringList{QStringLiteral("ItemsPropertiesUpdated")});
}

void tst_DBusMenu::anOpenMenuKeepsItsLinesUntilItCloses()
{
    static_cast<void>(layout());
    event(0, kOpened);
    QVERIFY(_menu->isOpen());
    _list->current = {{9, QStringLiteral("Cake: 9s")}, {7, QStringLiteral("Tea: 4s")}};
    Q_EMIT _list->linesChanged();
    Q_EMIT _list->textsChanged();
    QTRY_VERIFY(_peer->hasHeardSomething());
    QCOMPARE(_peer->takeNames(), QStringList{QStringLiteral("ItemsPropertiesUpdated")});
    QCOMPARE(labels(layout()),
             (QStringList{QStringLiteral("Tea: 4s"), QStringLiteral("Eggs: 1m 5s")}));
    event(0, kClosed);
    QVERIFY(!_menu->isOpen());
    QCOMPARE(_peer->takeNames(), QStringList{QStringLiteral("LayoutUpdated")});
    QCOMPARE(labels(layout()),
             (QStringList{QStringLiteral("Cake: 9s"), QStringLiteral("Tea: 4s")}));
}

void tst_DBusMenu::anOpenMenuThatLosesItsListStillChooses()
{
    static_cast<void>(layout());
    event(0, kOpened);
    _menu->setMenu(nullptr);
    QCOMPARE(layout().children.size(), 2);
    event(7, kClicked);
    QCOMPARE(_list->chosen, std::vector<int>{7});
    QVERIFY(layout().children.isEmpty());
}

void tst_DBusMenu::aClickClosesTheMenu()
{
    static_cast<void>(layout());
    event(0, kOpened);
    event(7, kClicked);
    QVERIFY(!_menu->isOpen());
    QCOMPARE(_closings, 1);
}

void tst_DBusMenu::closingIsReportedOnce()
{
    event(0, kClosed);
    QCOMPARE(_closings, 0);
    event(0, kOpened);
    event(0, kClosed);
    event(0, kClosed);
    QCOMPARE(_closings, 1);
}

void tst_DBusMenu::aPanelThatIsGoneHasItOpenNoLonger()
{
    std::optional<BusPeer> other(std::in_place, _address, kPath + QStringLiteral("/Other"),
                                 kInterface);
    event(0, kOpened);
    other.reset();
    QCoreApplication::processEvents();
    QVERIFY(_menu->isOpen());
    _peer.reset();
    QTRY_VERIFY(!_menu->isOpen());
    QCOMPARE(_closings, 1);
}

void tst_DBusMenu::aListThatIsGoneLeavesAnEmptyMenu()
{
    static_cast<void>(layout());
    _list.reset();
    event(7, kClicked);
    QVERIFY(layout().children.isEmpty());
}

void tst_DBusMenu::twoHundredLinesCostOneSignal()
{
    _list->current.clear();
    for (int i = 0; i < 200; ++i)
        _list->current.push_back({i + 1, QStringLiteral("Tea: %1s").arg(i)});
    QCOMPARE(layout().children.size(), 200);
    static_cast<void>(_peer->takeHeard());
    for (StatusMenu::Line &line : _list->current)
        line.text += QLatin1Char('!');
    QVERIFY(aboutToShow());
    const QList<QDBusMessage> heard = _peer->takeHeard();
    QCOMPARE(heard.size(), 1);
    QCOMPARE(qdbus_cast<DBusMenuTypes::Items>(heard.first().arguments().constFirst()).size(), 200);
}

void tst_DBusMenu::anOpenMenuFollowsTextsThatKeepChanging()
{
    static_cast<void>(layout());
    event(0, kOpened);
    // As often as the display of a running timer changes.
    for (int tick = 0; tick < 15; ++tick) {
        _list->current[1].text = QString::number(tick);
        Q_EMIT _list->textsChanged();
        QTest::qWait(30);
    }
    QVERIFY(_peer->hasHeardSomething());
}

void tst_DBusMenu::aGroupThatIsAboutToShowIsToldWhatHasChanged()
{
    static_cast<void>(layout());
    _list->current[0].text = QStringLiteral("Tea: 3s");
    const QDBusMessage changed =
        _peer->ask(QStringLiteral("AboutToShowGroup"), {QVariant::fromValue(QList<int>{0, 7})});
    QCOMPARE(qdbus_cast<QList<int>>(changed.arguments().value(0)), QList<int>{0});
    QCOMPARE(qdbus_cast<QList<int>>(changed.arguments().value(1)), QList<int>());
}

WUFFER_TEST(tst_DBusMenu, OnPrivateBus)
#include "tst_DBusMenu.moc"

#include "rules/Chain.h"
#include "support/TestMain.h"

namespace
{
struct Member
{
    QString name;
    Member *before = nullptr;
    Member *after = nullptr;
};

Member *before(const Member &member)
{
    return member.before;
}

Member *after(const Member &member)
{
    return member.after;
}

void join(Member &first, Member &second)
{
    first.after = &second;
    second.before = &first;
}

QString chainOf(Member &member)
{
    QString names;
    for (const Member *each : Chain::membersThrough(member, before, after))
        names += each->name;
    return names;
}
} // namespace

/// Collecting the members of a chain, and its texts.
class tst_Chain final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void aSingleMemberIsItsWholeChain();
    void everyMemberSeesTheWholeChainFromItsHead();
    void theWalkEndsInACircle();
    void theWalkEndsAtAMemberLinkedToItself();
    void theWalkEndsWhereLinksAreOneSided();
    void theTextCountsFromOne();
    void onlyLinksThatExistAreNamed_data();
    void onlyLinksThatExistAreNamed();

private:
    Member a{QStringLiteral("A")};
    Member b{QStringLiteral("B")};
    Member c{QStringLiteral("C")};

private Q_SLOTS:
    void cleanup()
    {
        for (Member *member : {&a, &b, &c})
            member->before = member->after = nullptr;
    }
};

void tst_Chain::aSingleMemberIsItsWholeChain()
{
    QCOMPARE(chainOf(a), QStringLiteral("A"));
}

void tst_Chain::everyMemberSeesTheWholeChainFromItsHead()
{
    join(a, b);
    join(b, c);
    for (Member *member : {&a, &b, &c})
        QCOMPARE(chainOf(*member), QStringLiteral("ABC"));
}

void tst_Chain::theWalkEndsInACircle()
{
    join(a, b);
    join(b, c);
    join(c, a);
    QCOMPARE(chainOf(a), QStringLiteral("ABC"));
    QCOMPARE(chainOf(b), QStringLiteral("BCA"));
}

void tst_Chain::theWalkEndsAtAMemberLinkedToItself()
{
    join(a, a);
    QCOMPARE(chainOf(a), QStringLiteral("A"));
}

void tst_Chain::theWalkEndsWhereLinksAreOneSided()
{
    a.after = &b;
    b.after = &a;
    QCOMPARE(chainOf(a), QStringLiteral("AB"));
    QCOMPARE(chainOf(b), QStringLiteral("BA"));
}

void tst_Chain::theTextCountsFromOne()
{
    QCOMPARE(Chain::text(2, 3), QStringLiteral("Wuffer Chain - 2 of 3"));
}

void tst_Chain::onlyLinksThatExistAreNamed_data()
{
    QTest::addColumn<QString>("startedBy");
    QTest::addColumn<QString>("starts");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *name, const char *startedBy, const char *starts,
                        const char *text) {
        QTest::newRow(name) << QString::fromUtf8(startedBy) << QString::fromUtf8(starts)
                            << QString::fromUtf8(text);
    };
    row("none", "", "", "");
    row("the first", "", "Tea", "Starts “Tea”");
    row("one between", "Eggs", "Tea", "Started by “Eggs”; starts “Tea”");
    row("the last", "Eggs", "", "Started by “Eggs”");
    row("names with places", "%2", "%1", "Started by “%2”; starts “%1”");
}

void tst_Chain::onlyLinksThatExistAreNamed()
{
    QFETCH(const QString, startedBy);
    QFETCH(const QString, starts);
    QTEST(Chain::links(startedBy, starts), "text");
}

WUFFER_TEST(tst_Chain)
#include "tst_Chain.moc"

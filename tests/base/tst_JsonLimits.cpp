#include "base/JsonLimits.h"
#include "support/TestMain.h"

namespace
{
/// The parts, this many times, between brackets and separated by commas.
QByteArray joined(char opening, const QByteArray &part, int times, char closing)
{
    QByteArrayList parts;
    parts.fill(part, times);
    return opening + parts.join(", ") + closing;
}

QByteArray object(const QByteArray &member, int times)
{
    return joined('{', member, times, '}');
}

QByteArray list(const QByteArray &member, int times)
{
    return joined('[', member, times, ']');
}
} // namespace

/// What is counted in a JSON text, and what it is limited to.
class tst_JsonLimits final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void entriesAreLimited_data();
    void entriesAreLimited();
    void textsAreNotLimited_data();
    void textsAreNotLimited();
    void depthIsLimited();
    void whatIsNoJsonIsReadToItsEnd_data();
    void whatIsNoJsonIsReadToItsEnd();
};

void tst_JsonLimits::entriesAreLimited_data()
{
    constexpr int most = JsonLimits::kMostEntries;
    QTest::addColumn<QByteArray>("largest");
    QTest::addColumn<QByteArray>("tooLarge");
    const auto row = [](const char *name, const QByteArray &member, auto make, int times) {
        QTest::newRow(name) << make(member, times) << make(member, times + 1);
    };
    row("keys", R"("key": 1)", object, most);
    row("keys without blanks", R"("k":1)", object, most);
    row("keys of texts", R"("key": "a text")", object, most);
    row("keys of empty objects", R"("key": {})", object, most);
    row("nested keys", R"("key": {"a": {"b": 1}, "c": 1})", object, most / 4);
    row("keys of texts in lists", R"("key": ["a", "b"])", object, most);
    row("numbers", "-1.5e3", list, most);
    row("words", "null", list, most);
    row("empty lists", "[]", list, most);
    row("objects in a list", "{\"key\": 1}", list, most / 2);
}

void tst_JsonLimits::entriesAreLimited()
{
    QFETCH(const QByteArray, largest);
    QFETCH(const QByteArray, tooLarge);
    QVERIFY(JsonLimits::areKept(largest));
    QVERIFY(!JsonLimits::areKept(tooLarge));
}

void tst_JsonLimits::textsAreNotLimited_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("words") << QByteArray("tea");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("what is counted elsewhere") << QByteArray("[{:,:[{");
    QTest::newRow("escaped quotes") << QByteArray(R"(\":\":\":)");
    QTest::newRow("an escaped backslash at its end") << QByteArray(R"(:[\\)");
}

void tst_JsonLimits::textsAreNotLimited()
{
    QFETCH(const QByteArray, text);
    QVERIFY(JsonLimits::areKept("{\"a\": " + list('"' + text + '"', 200'000) + "}"));
}

void tst_JsonLimits::depthIsLimited()
{
    constexpr int most = JsonLimits::kDeepest;
    QVERIFY(JsonLimits::areKept(QByteArray(most, '[') + QByteArray(most, ']')));
    QVERIFY(!JsonLimits::areKept(QByteArray(most + 1, '[') + QByteArray(most + 1, ']')));
    // Brackets that are closed do not count.
    QVERIFY(JsonLimits::areKept(list("[[[[]]]]", most)));
}

void tst_JsonLimits::whatIsNoJsonIsReadToItsEnd_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("a text without an end") << QByteArray("{\"a");
    QTest::newRow("a backslash at the end") << QByteArray("{\"a\\");
    QTest::newRow("closing brackets alone") << QByteArray("]]}}");
    QTest::newRow("zero bytes") << QByteArray(64, '\0');
}

void tst_JsonLimits::whatIsNoJsonIsReadToItsEnd()
{
    QFETCH(const QByteArray, text);
    QVERIFY(JsonLimits::areKept(text));
}

WUFFER_TEST(tst_JsonLimits)
#include "tst_JsonLimits.moc"

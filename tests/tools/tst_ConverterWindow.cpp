#include "support/ConverterFixture.h"
#include "support/TestMain.h"

#include <QLabel>

#include <utility>

/// Typing in the fields, and moving between them.
class tst_ConverterWindow final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QLocale::setDefault(QLocale::system()); }

    void itOpensWithTheMillilitersSelected();
    void theWindowIsTheOneItWasGiven();
    void anEmptiedFieldCountsAsZero_data();
    void anEmptiedFieldCountsAsZero();
    void typingFromLeftToRightGivesTheNumberTyped_data();
    void typingFromLeftToRightGivesTheNumberTyped();
    void theEditedVolumeHasItsValueThereAndBack();
    void theEditedVolumeKeepsItsTextWhileItIsTyped();
    void theEditedWeightAndTemperatureStayAsTyped();
    void absurdNumbersStayNumbers();
    void everyFieldHasItsNameAndItsKey();
    void theTabKeyGoesThroughTheFieldsInOrder();
};

void tst_ConverterWindow::itOpensWithTheMillilitersSelected()
{
    ConverterFixture f;
    QVERIFY(QTest::qWaitForWindowActive(&f.window));
    QVERIFY(f.window.field("_millilitersField").hasFocus());
    QCOMPARE(f.window.field("_millilitersField").selectedText(), QStringLiteral("0"));
}

void tst_ConverterWindow::theWindowIsTheOneItWasGiven()
{
    const ConverterFixture f;
    QCOMPARE(f.window.converter.converterWindow(), &f.window);
    QCOMPARE(f.window.minimumSize(), f.window.maximumSize());
}

void tst_ConverterWindow::anEmptiedFieldCountsAsZero_data()
{
    QTest::addColumn<QByteArray>("field");
    for (const VolumeField &volume : kVolumeFields)
        QTest::newRow(volume.name) << QByteArray(volume.name);
    for (const char *field : kOtherFields)
        QTest::newRow(field) << QByteArray(field);
}

void tst_ConverterWindow::anEmptiedFieldCountsAsZero()
{
    QFETCH(const QByteArray, field);
    ConverterFixture f;
    f.window.type(field.constData(), "7");
    QTest::keyClick(&f.window.field(field.constData()), Qt::Key_Backspace);
    QCOMPARE(f.window.text(field.constData()), QString());
    QCOMPARE(f.window.value("_cupsField") + f.window.value("_millilitersField"), 0.0F);
    QCOMPARE(f.window.value("_gramsField") + f.window.value("_ouncesField"), 0.0F);
    const bool freezing = field == "_cField";
    QCOMPARE(f.window.value("_fField"), freezing ? 32.0F : 0.0F);
    QCOMPARE(f.window.value("_cField"), freezing ? 0.0F : -17.777779F);
    QCOMPARE(f.stored("fahrenheitValue"), freezing ? 32.0F : 0.0F);
    QCOMPARE(f.stored("gramsValue"), 0.0F);
    QCOMPARE(f.stored("mLValue"), 0.0F);
}

void tst_ConverterWindow::typingFromLeftToRightGivesTheNumberTyped_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<float>("number");

    using Row = std::pair<const char *, float>;
    constexpr std::array numbers{
        Row{"12.5", 12.5F},    Row{"0.05", 0.05F},
        Row{"3.75", 3.75F},    Row{"-7.3", -7.3F},
        Row{".5", 0.5F},       Row{"1000", 1000.0F},
        Row{"1e-3", 0.001F},   Row{"33.333332", 33.333332F},
        Row{"100.10", 100.1F}, Row{"0.000012", 0.000012F},
    };
    for (const char *locale : {"en_US", "de_DE", "fr_FR", "sv_SE"}) {
        const QString point = QLocale(QString::fromLatin1(locale)).decimalPoint();
        for (const auto &[keys, number] : numbers) {
            const QString typed = QString::fromLatin1(keys).replace(QLatin1Char('.'), point);
            QTest::addRow("%s in %s", keys, locale)
                << QString::fromLatin1(locale) << typed << number;
        }
        // The other decimal mark, as on the keypad or in a foreign recipe.
        const QChar other = point == QLatin1String(",") ? u'.' : u',';
        QTest::addRow("the other mark in %s", locale)
            << QString::fromLatin1(locale) << QStringLiteral("12") + other + QLatin1Char('5')
            << 12.5F;
    }
}

void tst_ConverterWindow::typingFromLeftToRightGivesTheNumberTyped()
{
    QFETCH(const QString, locale);
    QFETCH(const QString, keys);
    QFETCH(const float, number);
    QLocale::setDefault(QLocale(locale));
    ConverterFixture f;
    for (const auto &[name, unit] : kVolumeFields) {
        f.window.type(name, keys);
        const float milliliters = Conversions::millilitersFrom(unit, number);
        QVERIFY(f.stored("mLValue") == milliliters);
        for (const VolumeField &other : kVolumeFields)
            QVERIFY(f.window.value(other.name) ==
                    Conversions::fromMilliliters(milliliters, other.unit));
    }
    for (const char *name : kOtherFields) {
        f.window.type(name, keys);
        QCOMPARE(f.window.text(name), keys);
        QVERIFY(f.window.value(name) == number);
    }
}

void tst_ConverterWindow::theEditedVolumeHasItsValueThereAndBack()
{
    ConverterFixture f;
    f.window.type("_teaspoonsField", "3.5");
    QVERIFY(f.window.value("_teaspoonsField") == 3.5000002F);
    f.window.type("_tablespoonsField", "0.1");
    QVERIFY(f.window.value("_tablespoonsField") == 0.10000001F);
}

void tst_ConverterWindow::theEditedVolumeKeepsItsTextWhileItIsTyped()
{
    ConverterFixture f;
    f.window.type("_cupsField", "about 1.50");
    QCOMPARE(f.window.text("_cupsField"), QStringLiteral("about 1.50"));
    QVERIFY(f.window.value("_cupsField") == 0.0F);
    f.window.type("_cupsField", "1.50");
    f.window.type("_teaspoonsField", "003.50 tsp");
    QCOMPARE(f.window.text("_teaspoonsField"), QStringLiteral("003.50 tsp"));
    QVERIFY(f.window.value("_teaspoonsField") == 3.5000002F);
}

void tst_ConverterWindow::theEditedWeightAndTemperatureStayAsTyped()
{
    ConverterFixture f;
    f.window.type("_ouncesField", "007.50 oz");
    QCOMPARE(f.window.text("_ouncesField"), QStringLiteral("007.50 oz"));
    f.window.type("_cField", "1,5");
    QCOMPARE(f.window.text("_cField"), QStringLiteral("1,5"));
}

void tst_ConverterWindow::absurdNumbersStayNumbers()
{
    ConverterFixture f;
    for (const char *field : {"_cupsField", "_ouncesField", "_cField", "_fField"}) {
        for (const char *keys : {"1e99", "-1e99", "1e-99", "999999999999999999999999999999999999"})
            f.window.type(field, keys);
    }
    for (const char *key : {"mLValue", "gramsValue", "fahrenheitValue"})
        QVERIFY(f.stored(key) > 1e30F);
    for (const VolumeField &volume : kVolumeFields)
        QVERIFY(qIsFinite(f.window.value(volume.name)));
}

void tst_ConverterWindow::everyFieldHasItsNameAndItsKey()
{
    const ConverterFixture f;
    QSet<QKeySequence> keys;
    const QList<NumberField *> fields = f.window.findChildren<NumberField *>();
    QCOMPARE(fields.size(), 9);
    for (const QLabel *label : f.window.findChildren<QLabel *>()) {
        const auto *field = qobject_cast<NumberField *>(label->buddy());
        if (!field)
            continue;
        QVERIFY(label->text().remove(QLatin1Char('&')).startsWith(field->accessibleName()));
        keys.insert(QKeySequence::mnemonic(label->text()));
    }
    QCOMPARE(keys.size(), fields.size());
    // The mnemonics of the menus.
    for (const Qt::Key key : {Qt::Key_F, Qt::Key_T, Qt::Key_W, Qt::Key_H})
        QVERIFY(!keys.contains(QKeySequence(Qt::ALT | key)));
}

void tst_ConverterWindow::theTabKeyGoesThroughTheFieldsInOrder()
{
    ConverterFixture f;
    QVERIFY(QTest::qWaitForWindowActive(&f.window));
    for (const char *name : {"_millilitersField", "_fluidOuncesField", "_cupsField",
                             "_tablespoonsField", "_teaspoonsField", "_gramsField", "_ouncesField",
                             "_cField", "_fField", "_millilitersField"}) {
        QCOMPARE(f.window.focusWidget()->objectName(), QString::fromLatin1(name));
        QTest::keyClick(f.window.focusWidget(), Qt::Key_Tab);
    }
}

WUFFER_TEST(tst_ConverterWindow)
#include "tst_ConverterWindow.moc"

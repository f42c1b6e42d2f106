#include "support/ConverterFixture.h"
#include "support/TestMain.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

/// Conversions between the fields, and the stored values.
class tst_Converter final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QLocale::setDefault(QLocale::system()); }

    void withoutSettingsItOpensAtZero();
    void everyVolumeConvertsToTheOthers_data();
    void everyVolumeConvertsToTheOthers();
    void weightsConvertToEachOther_data();
    void weightsConvertToEachOther();
    void temperaturesConvertToEachOther_data();
    void temperaturesConvertToEachOther();
    void textCountsAsItsLeadingNumber_data();
    void textCountsAsItsLeadingNumber();
    void theGroupsAreIndependent();
    void everyKeystrokeIsStored();
    void theLastValuesComeBack_data();
    void theLastValuesComeBack();
    void settingsOfTheWrongKindReadAsZero();
    void anotherFieldIsIgnored();
    void aSourceOfAnotherGroupConvertsNothing();
};

void tst_Converter::withoutSettingsItOpensAtZero()
{
    const ConverterFixture f;
    QCOMPARE(f.window.temperatures(), QStringLiteral("-17.778 0"));
    QCOMPARE(f.window.exactTemperatures(), QStringLiteral("-17.777779 0"));
    QCOMPARE(f.window.weights(), QStringLiteral("0 0"));
    QCOMPARE(f.window.volumes(), QStringLiteral("0 0 0 0 0"));
}

void tst_Converter::everyVolumeConvertsToTheOthers_data()
{
    QTest::addColumn<QByteArray>("field");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("exact");
    QTest::addColumn<QString>("shown");

    const auto row = [](const char *name, const char *field, const char *keys, const char *exact,
                        const char *shown) {
        QTest::newRow(name) << QByteArray(field) << QString::fromLatin1(keys)
                            << QString::fromLatin1(exact) << QString::fromLatin1(shown);
    };
    row("a milliliter", "_millilitersField", "1", "1 0.033814024 0.004226753 0.06762805 0.20288414",
        "1 0.033814 0.0042268 0.067628 0.20288");
    row("a metric cup", "_millilitersField", "250", "250 8.4535055 1.0566882 16.907011 50.721035",
        "250 8.4535 1.0567 16.907 50.721");
    row("a fluid ounce", "_fluidOuncesField", "1", "29.57353 1 0.125 2 6", "29.574 1 0.125 2 6");
    row("a cup", "_cupsField", "1", "236.58824 8 1 16 48", "236.59 8 1 16 48");
    row("a tablespoon", "_tablespoonsField", "1", "14.786765 0.5 0.0625 1 3",
        "14.787 0.5 0.0625 1 3");
    row("a teaspoon", "_teaspoonsField", "1", "4.9289217 0.16666667 0.020833334 0.33333334 1",
        "4.9289 0.16667 0.020833 0.33333 1");
    row("less than nothing", "_cupsField", "-1", "-236.58824 -8 -1 -16 -48",
        "-236.59 -8 -1 -16 -48");
}

void tst_Converter::everyVolumeConvertsToTheOthers()
{
    QFETCH(const QByteArray, field);
    QFETCH(const QString, keys);
    ConverterFixture f;
    f.window.type(field.constData(), keys);
    QTEST(f.window.exactVolumes(), "exact");
    QTEST(f.window.volumes(), "shown");
}

void tst_Converter::weightsConvertToEachOther_data()
{
    QTest::addColumn<QByteArray>("field");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("exact");
    QTest::addColumn<QString>("shown");

    const auto row = [](const char *name, const char *field, const char *keys, const char *exact,
                        const char *shown) {
        QTest::newRow(name) << QByteArray(field) << QString::fromLatin1(keys)
                            << QString::fromLatin1(exact) << QString::fromLatin1(shown);
    };
    row("a gram", "_gramsField", "1", "1 0.03527396", "1 0.035274");
    row("a kilogram", "_gramsField", "1000", "1000 35.27396", "1000 35.274");
    row("its ounces", "_ouncesField", "35.2739619", "999.99994 35.27396", "1000 35.2739619");
    row("an ounce", "_ouncesField", "1", "28.349524 1", "28.35 1");
    row("a pound", "_ouncesField", "16", "453.59238 16", "453.59 16");
}

void tst_Converter::weightsConvertToEachOther()
{
    QFETCH(const QByteArray, field);
    QFETCH(const QString, keys);
    ConverterFixture f;
    f.window.type(field.constData(), keys);
    QTEST(f.window.exactWeights(), "exact");
    QTEST(f.window.weights(), "shown");
}

void tst_Converter::temperaturesConvertToEachOther_data()
{
    QTest::addColumn<QByteArray>("field");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("exact");
    QTest::addColumn<QString>("shown");

    const auto row = [](const char *name, const char *field, const char *keys, const char *exact,
                        const char *shown) {
        QTest::newRow(name) << QByteArray(field) << QString::fromLatin1(keys)
                            << QString::fromLatin1(exact) << QString::fromLatin1(shown);
    };
    row("water boils", "_cField", "100", "100 212", "100 212");
    row("water boils in Fahrenheit", "_fField", "212", "100 212", "100 212");
    row("water freezes", "_cField", "0", "0 32", "0 32");
    row("as cold as zero Fahrenheit", "_fField", "0", "-17.777779 0", "-17.778 0");
    row("both the same", "_cField", "-40", "-40 -40", "-40 -40");
    row("body heat", "_fField", "98.6", "37 98.6", "37 98.6");
    row("a hot oven", "_fField", "451", "232.77777 451", "232.78 451");
    row("in single precision", "_cField", "-273.15", "-273.15 -459.66998", "-273.15 -459.67");
}

void tst_Converter::temperaturesConvertToEachOther()
{
    QFETCH(const QByteArray, field);
    QFETCH(const QString, keys);
    ConverterFixture f;
    f.window.type(field.constData(), keys);
    QTEST(f.window.exactTemperatures(), "exact");
    QTEST(f.window.temperatures(), "shown");
}

void tst_Converter::textCountsAsItsLeadingNumber_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("ounces");
    QTest::newRow("no number") << QStringLiteral("much") << QStringLiteral("0");
    QTest::newRow("a number first") << QStringLiteral("1000 grams") << QStringLiteral("35.274");
    QTest::newRow("a number later") << QStringLiteral("about 1000") << QStringLiteral("0");
    QTest::newRow("a sign alone") << QStringLiteral("-") << QStringLiteral("0");
}

void tst_Converter::textCountsAsItsLeadingNumber()
{
    QFETCH(const QString, keys);
    ConverterFixture f;
    f.window.type("_gramsField", keys);
    QTEST(f.window.text("_ouncesField"), "ounces");
}

void tst_Converter::theGroupsAreIndependent()
{
    ConverterFixture f;
    f.window.type("_cupsField", "1");
    f.window.type("_gramsField", "1");
    f.window.type("_cField", "100");
    QCOMPARE(f.window.exactVolumes(), QStringLiteral("236.58824 8 1 16 48"));
    QCOMPARE(f.window.exactWeights(), QStringLiteral("1 0.03527396"));
    QCOMPARE(f.window.temperatures(), QStringLiteral("100 212"));
}

void tst_Converter::everyKeystrokeIsStored()
{
    ConverterFixture f;
    f.window.type("_cupsField", "1");
    QVERIFY(f.stored("mLValue") == 236.588237F);
    QTest::keyClicks(&f.window.field("_cupsField"), QStringLiteral("0"));
    QVERIFY(f.stored("mLValue") == 2365.88237F);
    f.window.type("_ouncesField", "1");
    QVERIFY(f.stored("gramsValue") == 28.349524F);
    f.window.type("_cField", "37");
    QVERIFY(f.stored("fahrenheitValue") == 98.6F);
    f.defaults.synchronize();
    QFile file(f.settingsPath());
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QStringList keys = QJsonDocument::fromJson(file.readAll()).object().keys();
    QCOMPARE(keys, QStringList({QStringLiteral("fahrenheitValue"), QStringLiteral("gramsValue"),
                                QStringLiteral("mLValue")}));
}

void tst_Converter::theLastValuesComeBack_data()
{
    QTest::addColumn<QString>("locale");
    QTest::newRow("in the United States") << QStringLiteral("en_US");
    QTest::newRow("in Germany") << QStringLiteral("de_DE");
    QTest::newRow("in Egypt") << QStringLiteral("ar_EG");
}

void tst_Converter::theLastValuesComeBack()
{
    QFETCH(const QString, locale);
    QLocale::setDefault(QLocale(locale));
    ConverterFixture f;
    f.window.type("_tablespoonsField", "3");
    f.window.type("_ouncesField", "7");
    f.window.type("_cField", "21");
    const ConverterWindow again;
    // Three values are stored; all others are computed from them.
    for (const char *stored : {"_millilitersField", "_gramsField", "_fField"}) {
        QVERIFY(again.value(stored) == f.window.value(stored));
        QCOMPARE(again.text(stored), FigureText::write(f.window.value(stored), QLocale()));
    }
    QVERIFY(again.value("_tablespoonsField") == 3.0F);
    QVERIFY(again.value("_ouncesField") == 6.9999995F);
    QVERIFY(again.value("_cField") == 21.000002F);
}

void tst_Converter::settingsOfTheWrongKindReadAsZero()
{
    TestServices services;
    services.defaults.setObject(QStringLiteral("hot"), QStringLiteral("fahrenheitValue"));
    services.defaults.setObject(QVariantList(), QStringLiteral("gramsValue"));
    services.defaults.setObject(1e300, QStringLiteral("mLValue"));
    const ConverterWindow window;
    QCOMPARE(window.exactTemperatures(), QStringLiteral("-17.777779 0"));
    QCOMPARE(window.weights(), QStringLiteral("0 0"));
    QVERIFY(qIsFinite(window.value("_teaspoonsField")));
}

void tst_Converter::anotherFieldIsIgnored()
{
    ConverterFixture f;
    f.window.type("_cupsField", "1");
    NumberField other;
    other.setFloatValue(5.0F);
    f.window.converter.controlTextDidChange(other);
    QCOMPARE(f.window.exactVolumes(), QStringLiteral("236.58824 8 1 16 48"));
    QVERIFY(f.stored("mLValue") == 236.588237F);
}

void tst_Converter::aSourceOfAnotherGroupConvertsNothing()
{
    ConverterFixture f;
    f.window.type("_cupsField", "1");
    f.window.type("_gramsField", "1");
    f.window.type("_fField", "212");
    const NumberField &celsius = f.window.field("_cField");
    f.window.converter.convertWeight(celsius);
    QCOMPARE(f.window.exactWeights(), QStringLiteral("1 0.03527396"));
    f.window.converter.convertTemperature(f.window.field("_gramsField"));
    QCOMPARE(f.window.temperatures(), QStringLiteral("100 212"));
    f.window.converter.convertVolume(celsius);
    QCOMPARE(f.window.volumes(), QStringLiteral("0 0 0 0 0"));
}

WUFFER_TEST(tst_Converter)
#include "tst_Converter.moc"

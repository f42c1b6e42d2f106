#include "base/NotificationCenter.h"
#include "support/TestMain.h"

#include <QStringList>
#include <QTest>

namespace
{
const QString kNews = QStringLiteral("news");
const QString kWeather = QStringLiteral("weather");

/// A centre, and a diary of the observers that it called.
struct Fixture
{
    NotificationCenter center;
    QStringList diary;

    NotificationCenter::Handler writes(const char *entry)
    {
        return [this, entry](QObject *) { diary << QString::fromLatin1(entry); };
    }
    [[nodiscard]] QString entries() const { return diary.join(QLatin1Char(' ')); }
};
} // namespace

class tst_NotificationCenter final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void observersAreToldAtOnceInTheOrderOfTheirRegistration();
    void onlyTheNameThatWasAskedForIsDelivered();
    void theObjectIsPassedOn();
    void anObserverWithTwoRegistrationsIsToldTwice();
    void aDestroyedObserverIsDropped();
    void aRemovedObserverIsDroppedForThatNameOnly();
    void anObserverRegisteredDuringADeliveryWaitsForTheNext();
    void anObserverRemovedDuringADeliveryIsLeftOut();
    void anObserverDestroyedDuringADeliveryIsLeftOut();
    void anObserverMayRemoveItself();
    void anObserverMayDestroyItself();
    void anObjectDestroyedDuringADeliveryIsNotPassedOn();
    void aNoticeMayBePostedDuringADelivery();
    void thereIsOneDefaultCenter();
};

void tst_NotificationCenter::observersAreToldAtOnceInTheOrderOfTheirRegistration()
{
    Fixture f;
    QObject first;
    QObject second;
    f.center.addObserver(second, kNews, f.writes("second"));
    f.center.addObserver(first, kNews, f.writes("first"));

    f.center.postNotificationName(kNews);
    f.diary << QStringLiteral("posted");

    QCOMPARE(f.entries(), QStringLiteral("second first posted"));
}

void tst_NotificationCenter::onlyTheNameThatWasAskedForIsDelivered()
{
    Fixture f;
    QObject observer;
    f.center.addObserver(observer, kNews, f.writes("news"));
    f.center.addObserver(observer, kWeather, f.writes("weather"));

    f.center.postNotificationName(kWeather);
    f.center.postNotificationName(QStringLiteral("New"));
    f.center.postNotificationName(QString());

    QCOMPARE(f.entries(), QStringLiteral("weather"));
}

void tst_NotificationCenter::theObjectIsPassedOn()
{
    NotificationCenter center;
    QObject observer;
    QObject poster;
    QList<QObject *> received;
    center.addObserver(observer, kNews, [&](QObject *object) { received << object; });

    center.postNotificationName(kNews, &poster);
    center.postNotificationName(kNews);

    QCOMPARE(received, (QList<QObject *>{&poster, nullptr}));
}

void tst_NotificationCenter::anObserverWithTwoRegistrationsIsToldTwice()
{
    Fixture f;
    QObject observer;
    f.center.addObserver(observer, kNews, f.writes("one"));
    f.center.addObserver(observer, kNews, f.writes("two"));

    f.center.postNotificationName(kNews);
    QCOMPARE(f.entries(), QStringLiteral("one two"));

    f.center.removeObserver(observer, kNews);
    f.center.postNotificationName(kNews);
    QCOMPARE(f.entries(), QStringLiteral("one two"));
}

void tst_NotificationCenter::aDestroyedObserverIsDropped()
{
    Fixture f;
    QObject other;
    auto observer = std::make_unique<QObject>();
    f.center.addObserver(*observer, kNews, f.writes("gone"));
    f.center.addObserver(other, kNews, f.writes("other"));

    observer.reset();
    f.center.postNotificationName(kNews);

    QCOMPARE(f.entries(), QStringLiteral("other"));
}

void tst_NotificationCenter::aRemovedObserverIsDroppedForThatNameOnly()
{
    Fixture f;
    QObject observer;
    QObject other;
    f.center.addObserver(observer, kNews, f.writes("news"));
    f.center.addObserver(observer, kWeather, f.writes("weather"));
    f.center.addObserver(other, kNews, f.writes("other"));

    f.center.removeObserver(observer, kNews);
    f.center.postNotificationName(kNews);
    f.center.postNotificationName(kWeather);

    QCOMPARE(f.entries(), QStringLiteral("other weather"));
}

void tst_NotificationCenter::anObserverRegisteredDuringADeliveryWaitsForTheNext()
{
    Fixture f;
    QObject first;
    QObject late;
    f.center.addObserver(first, kNews, [&](QObject *) {
        f.diary << QStringLiteral("first");
        if (f.diary.size() == 1)
            f.center.addObserver(late, kNews, f.writes("late"));
    });

    f.center.postNotificationName(kNews);
    QCOMPARE(f.entries(), QStringLiteral("first"));
    f.center.postNotificationName(kNews);
    QCOMPARE(f.entries(), QStringLiteral("first first late"));
}

void tst_NotificationCenter::anObserverRemovedDuringADeliveryIsLeftOut()
{
    Fixture f;
    QObject first;
    QObject second;
    f.center.addObserver(first, kNews, [&](QObject *) { f.center.removeObserver(second, kNews); });
    f.center.addObserver(second, kNews, f.writes("second"));

    f.center.postNotificationName(kNews);

    QCOMPARE(f.entries(), QString());
}

void tst_NotificationCenter::anObserverDestroyedDuringADeliveryIsLeftOut()
{
    Fixture f;
    QObject first;
    auto second = std::make_unique<QObject>();
    f.center.addObserver(first, kNews, [&](QObject *) { second.reset(); });
    f.center.addObserver(*second, kNews, f.writes("second"));

    f.center.postNotificationName(kNews);

    QVERIFY(!second);
    QCOMPARE(f.entries(), QString());
}

void tst_NotificationCenter::anObserverMayRemoveItself()
{
    Fixture f;
    QObject first;
    QObject second;
    f.center.addObserver(first, kNews,
                         [&, entry = QStringLiteral("a text long enough to own")](QObject *) {
                             f.center.removeObserver(first, kNews);
                             f.diary << entry;
                         });
    f.center.addObserver(second, kNews, f.writes("second"));

    f.center.postNotificationName(kNews);
    f.center.postNotificationName(kNews);

    QCOMPARE(f.entries(), QStringLiteral("a text long enough to own second second"));
}

void tst_NotificationCenter::anObserverMayDestroyItself()
{
    Fixture f;
    QObject second;
    auto first = std::make_unique<QObject>();
    f.center.addObserver(*first, kNews, [&](QObject *) { first.reset(); });
    f.center.addObserver(second, kNews, f.writes("second"));

    f.center.postNotificationName(kNews);
    f.center.postNotificationName(kNews);

    QCOMPARE(f.entries(), QStringLiteral("second second"));
}

void tst_NotificationCenter::anObjectDestroyedDuringADeliveryIsNotPassedOn()
{
    NotificationCenter center;
    QObject observer;
    auto poster = std::make_unique<QObject>();
    QList<QObject *> received;
    center.addObserver(observer, kNews, [&](QObject *) { poster.reset(); });
    center.addObserver(observer, kNews, [&](QObject *object) { received << object; });

    center.postNotificationName(kNews, poster.get());

    QCOMPARE(received, QList<QObject *>{nullptr});
}

void tst_NotificationCenter::aNoticeMayBePostedDuringADelivery()
{
    Fixture f;
    QObject observer;
    f.center.addObserver(observer, kNews, [&](QObject *) {
        f.center.postNotificationName(kWeather);
        f.diary << QStringLiteral("news");
    });
    f.center.addObserver(observer, kWeather, f.writes("weather"));
    f.center.addObserver(observer, kNews, f.writes("more"));

    f.center.postNotificationName(kNews);

    QCOMPARE(f.entries(), QStringLiteral("weather news more"));
}

void tst_NotificationCenter::thereIsOneDefaultCenter()
{
    QCOMPARE(&NotificationCenter::defaultCenter(), &NotificationCenter::defaultCenter());
}

WUFFER_TEST(tst_NotificationCenter, WithoutWindows)
#include "tst_NotificationCenter.moc"

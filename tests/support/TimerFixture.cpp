#include "support/TimerFixture.h"

#include <QTest>

namespace
{
void choose(WebbyComboBox &combo, const QString &path)
{
    combo.addDataObject(path, QStringLiteral("a sound of the user's"));
    combo.selectItemWithDataObjectValue(path);
}
} // namespace

void TimerFixture::typeDuration(int hours, int minutes, int seconds)
{
    part<QLineEdit>("_hoursField").setText(QString::number(hours));
    part<QLineEdit>("_minutesField").setText(QString::number(minutes));
    part<QLineEdit>("_secondsField").setText(QString::number(seconds));
}

void TimerFixture::typeName(const QString &name)
{
    auto &field = part<QLineEdit>("_titleField");
    field.selectAll();
    QTest::keyClicks(&field, name);
}

void TimerFixture::startCountdown(int seconds)
{
    typeDuration(0, 0, seconds);
    pressGo();
}

void TimerFixture::chooseFinish(const QString &action)
{
    auto &combo = part<QComboBox>("_finishedCombo");
    const int index = combo.findText(action);
    if (index < 0)
        qFatal("there is no finish action %s", qPrintable(action));
    combo.setCurrentIndex(index);
    timer.handleFinishedComboChange();
}

void TimerFixture::chooseAlarm(const QString &path)
{
    choose(part<WebbyComboBox>("_alarmSoundCombo"), path);
}

void TimerFixture::chooseBeep(const QString &path)
{
    choose(part<WebbyComboBox>("_countdownSoundCombo"), path);
}

void TimerFixture::set(const char *key, const QVariant &value)
{
    defaults.setObject(value, QString::fromLatin1(key));
    NotificationCenter::defaultCenter().postNotificationName(
        QStringLiteral("prefsChangedNotification"));
}

QString TimerFixture::fields() const
{
    return part<QLineEdit>("_hoursField").text() + QLatin1Char(' ') +
           part<QLineEdit>("_minutesField").text() + QLatin1Char(' ') +
           part<QLineEdit>("_secondsField").text();
}

QHash<QByteArray, DisplayLabel *> TimerFixture::findLabels() const
{
    QHash<QByteArray, DisplayLabel *> found;
    for (auto *each : timer.window()->findChildren<DisplayLabel *>())
        found[each->objectName().toLatin1()] = each;
    return found;
}

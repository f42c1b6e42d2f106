#include "support/TimerUser.h"

#include <QTest>

namespace
{
void choose(WebbyComboBox &combo, const QString &path)
{
    combo.addDataObject(path, QStringLiteral("a sound of the user's"));
    combo.selectItemWithDataObjectValue(path);
}
} // namespace

void TimerUser::typeDuration(int hours, int minutes, int seconds)
{
    part<QLineEdit>("_hoursField").setText(QString::number(hours));
    part<QLineEdit>("_minutesField").setText(QString::number(minutes));
    part<QLineEdit>("_secondsField").setText(QString::number(seconds));
}

void TimerUser::typeName(const QString &name)
{
    auto &field = part<QLineEdit>("_titleField");
    field.selectAll();
    QTest::keyClicks(&field, name);
}

void TimerUser::startCountdown(int seconds)
{
    typeDuration(0, 0, seconds);
    pressGo();
}

void TimerUser::chooseFinish(const QString &action)
{
    auto &combo = part<QComboBox>("_finishedCombo");
    const int index = combo.findText(action);
    if (index < 0)
        qFatal("there is no finish action %s", qPrintable(action));
    combo.setCurrentIndex(index);
    Q_EMIT combo.activated(index);
}

void TimerUser::pick(int index)
{
    picker().setCurrentIndex(index);
    Q_EMIT picker().activated(index);
}

void TimerUser::chooseAlarm(const QString &path)
{
    choose(part<WebbyComboBox>("_alarmSoundCombo"), path);
}

void TimerUser::chooseBeep(const QString &path)
{
    choose(part<WebbyComboBox>("_countdownSoundCombo"), path);
}

QString TimerUser::fields() const
{
    return part<QLineEdit>("_hoursField").text() + QLatin1Char(' ') +
           part<QLineEdit>("_minutesField").text() + QLatin1Char(' ') +
           part<QLineEdit>("_secondsField").text();
}

QHash<QByteArray, DisplayLabel *> TimerUser::findLabels() const
{
    QHash<QByteArray, DisplayLabel *> found;
    for (auto *each : timer.window()->findChildren<DisplayLabel *>())
        found[each->objectName().toLatin1()] = each;
    return found;
}

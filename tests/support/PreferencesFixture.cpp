#include "support/PreferencesFixture.h"

#include <QFile>
#include <QJsonDocument>
#include <QTest>
#include <QTimer>

Preferences &PreferencesFixture::open()
{
    preferences = std::make_unique<Preferences>(window, muteMenu, &WufferApplication::isQuitting);
    return *preferences;
}

void PreferencesFixture::choose(const char *combo, const QString &text) const
{
    auto &box = part<QComboBox>(combo);
    const int index = box.findText(text);
    if (index < 0)
        qFatal("there is no entry %s", qUtf8Printable(text));
    box.setCurrentIndex(index);
    Q_EMIT box.activated(index);
}

void PreferencesFixture::type(const QString &text) const
{
    auto &field = part<QLineEdit>("_finishedText");
    field.selectAll();
    QTest::keyClicks(&field, text);
}

void PreferencesFixture::meanwhile(const std::function<void()> &action)
{
    auto *const timer = new QTimer(&window);
    timer->setSingleShot(true);
    QObject::connect(timer, &QTimer::timeout, &window, action);
    timer->start(0);
}

void PreferencesFixture::set(const char *key, const QVariant &value)
{
    defaults.setObject(value, QString::fromLatin1(key));
}

QJsonObject PreferencesFixture::stored()
{
    defaults.synchronize();
    QFile file(settingsPath());
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QJsonDocument::fromJson(file.readAll()).object();
}

QStringList PreferencesFixture::entries(const QComboBox &combo)
{
    QStringList texts;
    for (int index = 0; index < combo.count(); ++index)
        texts << combo.itemText(index);
    return texts;
}

QString PreferencesFixture::selected(const char *combo) const
{
    return part<WebbyComboBox>(combo).dataObjectOfSelectedItem().value_or(
        QStringLiteral("(nothing)"));
}

#include "platform/DarkPreference.h"

#include "platform/linux/BusConnection.h"
#include "platform/linux/BusNameWatch.h"
#include "platform/linux/BusQuestion.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>

namespace
{
const QString kPortal = QStringLiteral("org.freedesktop.portal.Desktop");
const QString kPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString kInterface = QStringLiteral("org.freedesktop.portal.Settings");
const QString kNamespace = QStringLiteral("org.freedesktop.appearance");
const QString kKey = QStringLiteral("color-scheme");

/// The value in the variants that are wrapped around it.
QVariant unwrapped(QVariant value)
{
    while (value.metaType() == QMetaType::fromType<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value;
}
} // namespace

/// The portal of the desktop (XDG Desktop Portal, interface Settings). It is not started for this:
/// where it matters it runs.
class DarkPreference::Source final : public QObject
{
    Q_OBJECT

public:
    explicit Source(DarkPreference &preference) : _preference(preference)
    {
        connect(&_watch, &BusNameWatch::appeared, this, &Source::ask);
        connect(&BusConnection::instance(), &BusConnection::found, this, &Source::begin);
        begin();
    }

private Q_SLOTS:
    void hear(const QString &space, const QString &key, const QDBusVariant &value)
    {
        if (space == kNamespace && key == kKey)
            take(QVariant::fromValue(value));
    }

private:
    void begin()
    {
        if (!BusQuestion::isPossible())
            return;
        _watch.watch(kPortal);
        BusConnection::instance().current().connect({}, kPath, kInterface,
                                                    QStringLiteral("SettingChanged"), this,
                                                    SLOT(hear(QString, QString, QDBusVariant)));
        ask();
    }

    void ask()
    {
        QDBusMessage question =
            QDBusMessage::createMethodCall(kPortal, kPath, kInterface, QStringLiteral("Read"));
        question.setArguments({kNamespace, kKey});
        question.setAutoStartService(false);
        BusQuestion::ask(question, *this, BusQuestion::kDefaultTimeout,
                         [this](const QDBusMessage &answer) {
                             if (answer.type() == QDBusMessage::ReplyMessage)
                                 take(answer.arguments().value(0));
                         });
    }

    void take(const QVariant &value)
    {
        constexpr uint dark = 1;
        _preference.setDark(unwrapped(value).toUInt() == dark);
    }

    DarkPreference &_preference;
    BusNameWatch _watch;
};

DarkPreference::DarkPreference() : _source(std::make_unique<Source>(*this)) {}

DarkPreference::~DarkPreference() = default;

void DarkPreference::setDark(bool dark)
{
    if (std::exchange(_isDark, dark) != dark)
        Q_EMIT changed();
}

#include "DarkPreference.moc"

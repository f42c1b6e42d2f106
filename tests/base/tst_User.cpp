#include "base/SettingsPath.h"
#include "base/User.h"
#include "support/SettingsFile.h"
#include "support/TestMain.h"

#include <QFileInfo>

#include <optional>
#include <pwd.h>
#include <unistd.h>

namespace
{
/// Sets a variable of the environment, or removes it, while this object lives.
class Variable final
{
public:
    Variable(const char *name, const std::optional<QByteArray> &value) :
        _name(name),
        _before(qEnvironmentVariableIsSet(name) ? std::optional(qgetenv(name)) : std::nullopt)
    {
        set(value);
    }
    ~Variable() { set(_before); }
    Q_DISABLE_COPY_MOVE(Variable)

private:
    void set(const std::optional<QByteArray> &value)
    {
        if (value)
            qputenv(_name, *value);
        else
            qunsetenv(_name);
    }

    const char *const _name;
    const std::optional<QByteArray> _before;
};

using Text = std::optional<QByteArray>;

/// The home folder in the password database.
QString ownHome()
{
    return QFile::decodeName(::getpwuid(::geteuid())->pw_dir);
}
} // namespace

Q_DECLARE_METATYPE(Text)

/// Where the settings of the user are.
class tst_User final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void theConfigFolderIsNamedByTheEnvironment_data();
    void theConfigFolderIsNamedByTheEnvironment();
    void aUserWithoutHomeIsLookedUp_data();
    void aUserWithoutHomeIsLookedUp();
    void noFolderIsMadeInTheRoot();
    void aFileBelongsToTheUserWhoMadeIt();
};

void tst_User::theConfigFolderIsNamedByTheEnvironment_data()
{
    QTest::addColumn<Text>("configHome");
    QTest::addColumn<QString>("folder");
    const QString inHome = QStringLiteral("/home/user/.config");
    QTest::newRow("named") << Text("/some/where") << QStringLiteral("/some/where");
    QTest::newRow("not named") << Text() << inHome;
    QTest::newRow("empty") << Text("") << inHome;
    QTest::newRow("relative") << Text("some/where") << inHome;
    QTest::newRow("relative to the working folder") << Text("./where") << inHome;
    QTest::newRow("relative to the home folder") << Text("~/where") << inHome;
    QTest::newRow("the root") << Text("/") << inHome;
    QTest::newRow("the root by detours") << Text("//some/..") << inHome;
}

void tst_User::theConfigFolderIsNamedByTheEnvironment()
{
    QFETCH(const Text, configHome);
    QFETCH(const QString, folder);
    const Variable home("HOME", "/home/user");
    const Variable config("XDG_CONFIG_HOME", configHome);

    QCOMPARE(User::configFolder(), folder);
    QCOMPARE(UserDefaults::standardPath(), folder + QStringLiteral("/wuffer/wuffer.json"));
}

void tst_User::aUserWithoutHomeIsLookedUp_data()
{
    QTest::addColumn<Text>("home");
    QTest::newRow("not named") << Text();
    QTest::newRow("empty") << Text("");
    QTest::newRow("relative") << Text("home");
    QTest::newRow("the root") << Text("/");
}

void tst_User::aUserWithoutHomeIsLookedUp()
{
    QFETCH(const Text, home);
    const Variable noConfig("XDG_CONFIG_HOME", std::nullopt);
    const Variable named("HOME", home);

    QCOMPARE(User::configFolder(), ownHome() + QStringLiteral("/.config"));
}

void tst_User::noFolderIsMadeInTheRoot()
{
    const QString folder =
        QStringLiteral("/wuffer-test-%1").arg(QCoreApplication::applicationPid());

    SettingsPath::makePrivateFolder(folder + QStringLiteral("/wuffer"));

    const bool isMade = QFile::exists(folder);
    QDir(folder).removeRecursively();
    QVERIFY(!isMade);
}

void tst_User::aFileBelongsToTheUserWhoMadeIt()
{
    const SettingsFile file;
    file.write("{}");
    QVERIFY(User::owns(QFileInfo(file.path())));
    QVERIFY(!User::owns(QFileInfo(file.path() + QStringLiteral(".other"))));
    if (::geteuid() == 0) {
        QCOMPARE(::chown(QFile::encodeName(file.path()).constData(), 65534, 65534), 0);
        QVERIFY(!User::owns(QFileInfo(file.path())));
    }
}

WUFFER_TEST(tst_User, WithoutWindows)
#include "tst_User.moc"

#include "BuildInfo.h"
#include "app/AboutDialog.h"
#include "app/WufferApplication.h"
#include "app/WufferController.h"
#include "support/Menus.h"
#include "support/TestMain.h"
#include "support/TimerFixture.h"

#include <QFile>
#include <QLabel>
#include <QProxyStyle>
#include <QPushButton>
#include <QTextDocumentFragment>

namespace
{
/// A style that gives icons to the buttons of dialogs, as those of some desktops do.
class IconsOnButtons final : public QProxyStyle
{
public:
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *data) const override
    {
        return hint == SH_DialogButtonBox_ButtonsHaveIcons
                   ? 1
                   : QProxyStyle::styleHint(hint, option, widget, data);
    }
};
} // namespace

/// The dialog with the program's name, version, owner and licences.
class tst_AboutDialog final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void itSaysNameAndVersion();
    void itNamesTheOwnerAsTheLicenceDoes();
    void itNamesTheLibrariesAndTheirLicences();
    void itsTextsCanBeSelectedByKeyboardAndMouse();
    void escapeAndReturnCloseIt();
    void itsButtonHasNoIcon();
    void theKeysOfTheMenusWorkInIt();
    void itComesBackAndThereIsOneOnly();

private:
    /// Opens the dialog by the Help menu, and waits until it is active.
    static AboutDialog &opened()
    {
        const WufferWindow &window = *WufferApplication::getWuffers().front()->window();
        menu(window, QStringLiteral("Help")).actions().last()->trigger();
        AboutDialog *dialog = shown().value(0);
        if (!dialog)
            qFatal("the dialog has not opened");
        activate(*dialog);
        if (!QTest::qWaitFor([&] { return QApplication::activeWindow() == dialog; }))
            qFatal("the dialog has not become active");
        return *dialog;
    }
    static QList<AboutDialog *> shown()
    {
        QList<AboutDialog *> found;
        for (QWidget *window : QApplication::topLevelWidgets()) {
            auto *dialog = qobject_cast<AboutDialog *>(window);
            if (dialog && dialog->isVisible())
                found << dialog;
        }
        return found;
    }
    static QString textOf(const AboutDialog &dialog, const char *label)
    {
        return QTextDocumentFragment::fromHtml(child<QLabel>(dialog, label).text()).toPlainText();
    }
    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(QGuiApplication::focusWindow(), key, modifiers);
    }

    std::unique_ptr<TestServices> _services;
    std::unique_ptr<WufferController> _controller;

private Q_SLOTS:
    void init()
    {
        Test::init();
        _services = std::make_unique<TestServices>();
        _controller = std::make_unique<WufferController>();
        _controller->newWuffer();
        activate(*WufferApplication::getWuffers().front()->window());
    }
    void cleanup()
    {
        _controller.reset();
        _services.reset();
    }
};

void tst_AboutDialog::itSaysNameAndVersion()
{
    const AboutDialog &dialog = opened();
    QCOMPARE(dialog.windowTitle(), QStringLiteral("About Wuffer"));
    QCOMPARE(textOf(dialog, "_nameLabel"), BuildInfo::name());
    QCOMPARE(textOf(dialog, "_versionLabel"), QStringLiteral("Version ") + BuildInfo::version());
    QVERIFY(!child<QLabel>(dialog, "_iconLabel").pixmap().isNull());
}

void tst_AboutDialog::itNamesTheOwnerAsTheLicenceDoes()
{
    QFile file(QFINDTESTDATA("../LICENSE"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
    const QString shown = child<QLabel>(opened(), "_licenceLabel").text();
    QVERIFY2(shown.contains(lines.at(0)), qPrintable(lines.at(0)));
    const QString owner = QString(lines.at(2)).replace(QStringLiteral("(c)"), QStringLiteral("©"));
    QVERIFY2(shown.startsWith(owner + QLatin1Char('\n')), qPrintable(owner));
}

void tst_AboutDialog::itNamesTheLibrariesAndTheirLicences()
{
    const QString table = child<QLabel>(opened(), "_librariesLabel").text();
    QStringList rows;
    for (const QString &row : table.split(QStringLiteral("<tr>")).mid(1)) {
        QStringList cells;
        for (const QString &cell : row.split(QStringLiteral("<td")).mid(1))
            cells << cell.section(QLatin1Char('>'), 1).section(QLatin1Char('<'), 0, 0);
        rows << cells.join(QLatin1Char('|'));
    }
    const QStringList expected{
        QStringLiteral("Qt %1|windows, session bus|LGPL 3").arg(QString::fromLatin1(qVersion())),
        QStringLiteral("cubeb|sound output|ISC"), QStringLiteral("libsndfile|sound files|LGPL 2.1"),
        QStringLiteral("libmpg123|MP3 files|LGPL 2.1"),
        QStringLiteral("libxcb|X Window System|MIT")};
    QCOMPARE(rows, expected);
}

void tst_AboutDialog::itsTextsCanBeSelectedByKeyboardAndMouse()
{
    const AboutDialog &dialog = opened();
    for (const char *name : {"_versionLabel", "_licenceLabel", "_librariesLabel"}) {
        auto &label = child<QLabel>(dialog, name);
        QVERIFY(label.textInteractionFlags().testFlag(Qt::TextSelectableByMouse));
        for (int presses = 0; !label.hasFocus() && presses < 10; ++presses)
            press(Qt::Key_Tab);
        QVERIFY2(label.hasFocus(), name);
        press(Qt::Key_A, Qt::ControlModifier);
        QVERIFY2(label.hasSelectedText(), name);
    }
}

void tst_AboutDialog::escapeAndReturnCloseIt()
{
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return}) {
        opened();
        press(key);
        QVERIFY2(shown().isEmpty(), qPrintable(QKeySequence(key).toString()));
    }
    QVERIFY(!WufferApplication::getWuffers().front()->isRunning());
}

void tst_AboutDialog::itsButtonHasNoIcon()
{
    QApplication::setStyle(new IconsOnButtons);
    const auto buttons = opened().findChildren<QPushButton *>();
    QCOMPARE(buttons.size(), 1);
    QVERIFY(buttons.constFirst()->icon().isNull());
}

void tst_AboutDialog::theKeysOfTheMenusWorkInIt()
{
    opened();
    press(Qt::Key_N, Qt::ControlModifier);
    QCOMPARE(WufferApplication::getWuffers().size(), std::size_t(2));
    opened();
    press(Qt::Key_W, Qt::ControlModifier);
    QVERIFY(shown().isEmpty());
    QCOMPARE(WufferApplication::getWuffers().size(), std::size_t(2));
}

void tst_AboutDialog::itComesBackAndThereIsOneOnly()
{
    const AboutDialog &first = opened();
    activate(*WufferApplication::getWuffers().front()->window());
    QCOMPARE(&opened(), &first);
    QCOMPARE(shown().size(), 1);
    QCOMPARE(first.windowHandle()->transientParent(),
             WufferApplication::getWuffers().front()->window()->windowHandle());
}

WUFFER_TEST(tst_AboutDialog)
#include "tst_AboutDialog.moc"

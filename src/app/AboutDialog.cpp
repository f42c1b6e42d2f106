#include "app/AboutDialog.h"

#include "BuildInfo.h"
#include "app/MainMenu.h"
#include "platform/SystemLibraries.h"
#include "platform/WindowOrder.h"
#include "ui_About.h"

#include <QApplication>
#include <QIcon>
#include <QPushButton>
#include <QWindow>

#include <array>

namespace
{
/// What the sound module is linked with.
constexpr std::array kSoundLibraries{
    //: What a library is used for.
    Library{"cubeb", QT_TRANSLATE_NOOP("AboutDialog", "sound output"), "ISC"},
    Library{"libsndfile", QT_TRANSLATE_NOOP("AboutDialog", "sound files"), "LGPL 2.1"},
    Library{"libmpg123", QT_TRANSLATE_NOOP("AboutDialog", "MP3 files"), "LGPL 2.1"},
};

/// The library's name, a %1 in it replaced by the version of Qt that is loaded at run time.
QString nameOf(const Library &library)
{
    const QString name = QString::fromLatin1(library.name);
    const QString version = QString::fromLatin1(qVersion());
    return name.contains(QLatin1String("%1")) ? name.arg(version) : name;
}

QString rowOf(const Library &library)
{
    QString cells;
    for (const QString &text :
         {nameOf(library), AboutDialog::tr(library.use), QString::fromLatin1(library.licence)})
        cells += QStringLiteral("<td style=\"padding: 1px 16px 1px 0px\">%1</td>").arg(text);
    return QStringLiteral("<tr>%1</tr>").arg(cells);
}

QString libraryTable()
{
    QString rows = rowOf({"Qt %1", SystemLibraries::useOfQt(), "LGPL 3"});
    for (const Library &each : kSoundLibraries)
        rows += rowOf(each);
    for (const Library &each : SystemLibraries::besideQt())
        rows += rowOf(each);
    return QStringLiteral("<table cellspacing=\"0\">%1</table>").arg(rows);
}
} // namespace

AboutDialog::AboutDialog(const MainMenu &menu) : _ui(std::make_unique<Ui::About>())
{
    constexpr int iconSize = 64;
    _ui->setupUi(this);
    setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
    _ui->_iconLabel->setPixmap(windowIcon().pixmap(iconSize));
    _ui->_nameLabel->setText(BuildInfo::name());
    _ui->_versionLabel->setText(tr("Version %1").arg(BuildInfo::version()));
    _ui->_librariesLabel->setText(libraryTable());
    QPushButton *close = _ui->_buttons->button(QDialogButtonBox::Close);
    // Like all other buttons; the cross of many themes does not suit dark colours.
    close->setIcon({});
    close->setFocus();
    menu.addKeysTo(*this);
}

AboutDialog::~AboutDialog() = default;

void AboutDialog::orderFront()
{
    const QWidget *below = QApplication::activeWindow();
    // Without it, windowHandle() would be null until the dialog has been shown once.
    create();
    if (below && below != this)
        windowHandle()->setTransientParent(below->windowHandle());
    bringToFront(*this);
}

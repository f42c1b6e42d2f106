#include "platform/SystemDesktop.h"
#include "support/TestMain.h"

#include <QDesktopServices>
#include <QUrl>

/// The requests to the real desktop, as far as a test without a desktop can see them.
class tst_SystemDesktop final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void anAddressIsOpenedByTheDesktop();

public Q_SLOTS:
    void open(const QUrl &url) { _opened << url; }

private:
    QList<QUrl> _opened;
};

void tst_SystemDesktop::anAddressIsOpenedByTheDesktop()
{
    const auto scheme = QStringLiteral("wuffer-test");
    const QUrl address(scheme + QStringLiteral("://page/1"));
    QDesktopServices::setUrlHandler(scheme, this, "open");
    SystemDesktop desktop;

    desktop.openUrl(address);

    QDesktopServices::unsetUrlHandler(scheme);
    QCOMPARE(_opened, QList<QUrl>{address});
}

WUFFER_TEST(tst_SystemDesktop)
#include "tst_SystemDesktop.moc"

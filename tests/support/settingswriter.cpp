#include "base/UserDefaults.h"

#include <QCoreApplication>
#include <QRandomGenerator>
#include <QTimer>

#include <chrono>
#include <cstdio>

namespace
{
/// Changes settings at random moments, each change in several of them, and says of each when it
/// was made.
class Writer final
{
public:
    explicit Writer(const QString &path) : _defaults(path)
    {
        _again.setSingleShot(true);
        _again.callOnTimeout([this] { change(); });
        change();
    }

private:
    void change()
    {
        const int count = _defaults.integerForKey(QStringLiteral("count")) + 1;
        _defaults.setObject(count, QStringLiteral("count"));
        _defaults.setObject(QString(_random.bounded(100'000), QLatin1Char('x')),
                            QStringLiteral("text"));
        _defaults.setObject(count, QStringLiteral("same"));
        const std::chrono::duration<double> now =
            std::chrono::steady_clock::now().time_since_epoch();
        std::printf("%d %.6f\n", count, now.count());
        std::fflush(stdout);
        // Now and then in quick succession.
        _again.start(_random.bounded(3) == 0 ? 0 : _random.bounded(500));
    }

    UserDefaults _defaults;
    QTimer _again;
    QRandomGenerator _random = QRandomGenerator::securelySeeded();
};
} // namespace

/// Changes the settings at the path given until it is killed.
int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const Writer writer(QCoreApplication::arguments().at(1));
    return QCoreApplication::exec();
}

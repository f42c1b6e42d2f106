#include "base/UserDefaults.h"

#include <QCoreApplication>
#include <QRandomGenerator>
#include <QTimer>

#include <chrono>
#include <cstdio>

namespace
{
/// Changes several settings together at random moments, and prints the number and the time of each
/// change.
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
        // One change in three is followed by the next at once.
        _again.start(_random.bounded(3) == 0 ? 0 : _random.bounded(500));
    }

    UserDefaults _defaults;
    QTimer _again;
    QRandomGenerator _random = QRandomGenerator::securelySeeded();
};
} // namespace

/// Changes the settings in the file that the first argument names, until the process is killed.
int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const Writer writer(QCoreApplication::arguments().at(1));
    return QCoreApplication::exec();
}

#include "base/Service.h"
#include "platform/FolderSearch.h"
#include "support/TestClock.h"
#include "support/TestMain.h"

#include <QTimer>

#include <atomic>
#include <functional>
#include <map>
#include <memory>
#include <semaphore>

namespace
{
const auto kFirst = QStringLiteral("/first");
const auto kSecond = QStringLiteral("/second");
const auto kThird = QStringLiteral("/third");

/// Folders on several disks, of which some answer only when the test lets them.
class Disks final
{
public:
    void add(const QString &folder) { _folders[folder]; }
    void hang(const QString &folder) { _folders[folder].hangs = true; }

    /// Lets one question about the folder be answered.
    void answer(const QString &folder) { _folders[folder].answer.release(); }

    [[nodiscard]] int questions() const { return _questions; }
    [[nodiscard]] int hanging() const { return _hanging; }

    /// Called on other threads, which change no folder.
    [[nodiscard]] bool exists(const QString &path)
    {
        ++_questions;
        const auto found = _folders.find(path);
        if (found != _folders.end() && found->second.hangs) {
            ++_hanging;
            found->second.answer.acquire();
            --_hanging;
        }
        return found != _folders.end();
    }

private:
    struct Folder
    {
        bool hangs = false;
        std::counting_semaphore<> answer{0};
    };

    std::map<QString, Folder> _folders;
    std::atomic<int> _questions = 0;
    std::atomic<int> _hanging = 0;
};
} // namespace

class tst_FolderSearch final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void theFirstThatExistsIsFound_data();
    void theFirstThatExistsIsFound();
    void aFolderThatHangsCountsAsMissing();
    void anEarlierFolderIsWaitedFor();
    void aLaterFolderIsNotWaitedFor();
    void aFolderThatHangsIsNotAskedForAgain();
    void aFolderThatHungIsFoundLater();
    void anAnswerMayComeAfterTheSearch();
    void theEndOfTheProgramEndsTheWait();

private:
    [[nodiscard]] FolderSearch::Exists exists() const
    {
        return [disks = _disks](const QString &folder) { return disks->exists(folder); };
    }
    [[nodiscard]] static QStringList all() { return {kFirst, kSecond, kThird}; }
    /// Calls the function once the event loop of the search runs, and all questions have been
    /// answered except for some that hang.
    void whileItHangs(QTimer &timer, const std::function<void()> &function) const;
    void answerAll(const QString &folder) const;

    TestClock _clock;
    const Service<Clock> _service{_clock};
    std::shared_ptr<Disks> _disks;
};

void tst_FolderSearch::init()
{
    Test::init();
    _disks = std::make_shared<Disks>();
}

void tst_FolderSearch::whileItHangs(QTimer &timer, const std::function<void()> &function) const
{
    connect(&timer, &QTimer::timeout, this, [this, &timer, function] {
        const int hanging = _disks->hanging();
        // Besides the test and the search, each question that is still open holds the disks.
        if (hanging == 0 || _disks.use_count() > 2 + hanging)
            return;
        timer.stop();
        function();
    });
    timer.start(0);
}

void tst_FolderSearch::answerAll(const QString &folder) const
{
    _disks->answer(folder);
    QTRY_COMPARE(_disks->hanging(), 0);
}

void tst_FolderSearch::theFirstThatExistsIsFound_data()
{
    QTest::addColumn<QStringList>("existing");
    QTest::addColumn<QString>("found");
    QTest::newRow("all") << all() << kFirst;
    QTest::newRow("the last two") << QStringList{kSecond, kThird} << kSecond;
    QTest::newRow("the last") << QStringList{kThird} << kThird;
    QTest::newRow("none") << QStringList{} << QString();
}

void tst_FolderSearch::theFirstThatExistsIsFound()
{
    QFETCH(const QStringList, existing);
    for (const QString &folder : existing)
        _disks->add(folder);
    FolderSearch search(exists());
    QTEST(search.firstOf(all()), "found");
    QTEST(search.firstOf(all()), "found");
    QCOMPARE(search.firstOf({}), QString());
    QVERIFY(_clock.isIdle());
}

void tst_FolderSearch::aFolderThatHangsCountsAsMissing()
{
    _disks->hang(kFirst);
    _disks->add(kSecond);
    FolderSearch search(exists());
    QTimer timer;
    whileItHangs(timer, [this] { _clock.advance(0.5); });
    QCOMPARE(search.firstOf(all()), kSecond);
    answerAll(kFirst);
}

void tst_FolderSearch::anEarlierFolderIsWaitedFor()
{
    _disks->hang(kFirst);
    _disks->add(kSecond);
    FolderSearch search(exists());
    QTimer timer;
    whileItHangs(timer, [this] {
        _clock.advance(0.4);
        _disks->answer(kFirst);
    });
    QCOMPARE(search.firstOf(all()), kFirst);
}

void tst_FolderSearch::aLaterFolderIsNotWaitedFor()
{
    _disks->add(kFirst);
    _disks->hang(kThird);
    FolderSearch search(exists());
    QCOMPARE(search.firstOf(all()), kFirst);
    QTRY_COMPARE(_disks->hanging(), 1);
    answerAll(kThird);
}

void tst_FolderSearch::aFolderThatHangsIsNotAskedForAgain()
{
    _disks->hang(kFirst);
    FolderSearch search(exists());
    for (int i = 0; i < 3; ++i) {
        QTimer timer;
        whileItHangs(timer, [this] { _clock.advance(0.5); });
        QCOMPARE(search.firstOf({kFirst}), QString());
    }
    QCOMPARE(_disks->questions(), 1);
    answerAll(kFirst);
}

void tst_FolderSearch::aFolderThatHungIsFoundLater()
{
    _disks->hang(kFirst);
    FolderSearch search(exists());
    QTimer timer;
    whileItHangs(timer, [this] { _clock.advance(0.5); });
    QCOMPARE(search.firstOf({kFirst}), QString());
    QTimer second;
    whileItHangs(second, [this] { _disks->answer(kFirst); });
    QCOMPARE(search.firstOf({kFirst}), kFirst);
    QCOMPARE(_disks->questions(), 1);
}

void tst_FolderSearch::anAnswerMayComeAfterTheSearch()
{
    _disks->hang(kFirst);
    {
        FolderSearch search(exists());
        QTimer timer;
        whileItHangs(timer, [this] { _clock.advance(0.5); });
        QCOMPARE(search.firstOf({kFirst}), QString());
    }
    answerAll(kFirst);
    // The thread lets go of the disks at last.
    QTRY_COMPARE(_disks.use_count(), 1);
}

void tst_FolderSearch::theEndOfTheProgramEndsTheWait()
{
    _disks->hang(kFirst);
    FolderSearch search(exists());
    QTimer timer;
    whileItHangs(timer, [] { QCoreApplication::exit(); });
    QCOMPARE(search.firstOf({kFirst}), QString());
    answerAll(kFirst);
}

WUFFER_TEST(tst_FolderSearch)
#include "tst_FolderSearch.moc"

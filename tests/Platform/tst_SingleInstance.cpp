#include "Launcher/RunningInstance.h"
#include "Platform/DataFolder.h"
#include "Platform/InstanceServer.h"
#include "Platform/SingleInstance.h"
#include "Platform/Unprivileged.h"
#include "support/TestProgram.h"

#include <csignal>
#include <future>
#include <sys/file.h>
#include <sys/syscall.h>
#include <sys/wait.h>

using namespace Qt::StringLiterals;

namespace
{
/// Sends a request on another thread, because the real client blocks until the reply.
std::future<std::optional<InstanceReply>> ask(const std::filesystem::path &folder,
                                              std::vector<std::string> arguments)
{
    return std::async(std::launch::async, [folder, arguments = std::move(arguments)] {
        return askRunningInstance(folder, arguments);
    });
}

template <typename Result>
Result settled(std::future<Result> future)
{
    const auto isReady = [&] {
        return future.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
    };
    return QTest::qWaitFor(isReady) ? future.get() : Result();
}

/// Replies with the request.
CommandLineResult echo(const QStringList &arguments)
{
    return {arguments.join('|'_L1), int(arguments.size())};
}

/// Another process that has locked the folder, until it is killed.
class Holder
{
public:
    explicit Holder(const std::filesystem::path &folder)
    {
        int ready[2];
        if (::pipe(ready) != 0)
            qFatal("no pipe");
        m_process = ::fork();
        if (m_process == 0)
            hold(folder, ready[1]);
        char mark = 0;
        isHolding = ::read(ready[0], &mark, 1) == 1 && mark == 1;
        ::close(ready[0]);
        ::close(ready[1]);
    }
    ~Holder() { kill(); }
    Holder(const Holder &) = delete;
    Holder &operator=(const Holder &) = delete;

    bool isHolding = false;

    void kill()
    {
        if (m_process <= 0)
            return;
        ::kill(m_process, SIGKILL);
        ::waitpid(m_process, nullptr, 0);
        m_process = 0;
    }

private:
    [[noreturn]] static void hold(const std::filesystem::path &folder, int ready)
    {
        SingleInstance instance(folder);
        const char mark = !instance.lockOrForward({u"pelko"_s}) && instance.isLocked();
        const InstanceServer server(folder, echo);
        if (::write(ready, &mark, 1) != 1)
            ::_exit(1);
        while (true)
            ::pause();
    }

    pid_t m_process = 0;
};

/// The error of locking; 0 for the system's result.
int lockError = 0;
} // namespace

extern "C" int flock(int descriptor, int operation) noexcept
{
    errno = lockError;
    return lockError ? -1 : int(::syscall(SYS_flock, descriptor, operation));
}

class TestSingleInstance : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFirstIsTheOne()
    {
        const DataFolder data;
        SingleInstance first(data.folder());

        QVERIFY(!first.lockOrForward({u"pelko"_s}));
        QVERIFY(first.isLocked());
    }

    void theSecondYieldsWithTheAnswerOfTheFirst()
    {
        const DataFolder data;
        SingleInstance first(data.folder());
        QVERIFY(!first.lockOrForward({u"pelko"_s}));
        const InstanceServer server(data.folder(), echo);

        const auto answer = settled(std::async(std::launch::async, [&data] {
            return SingleInstance(data.folder()).lockOrForward({u"pelko"_s, u"--spark"_s, u"a\nb ü"_s});
        }));

        QCOMPARE(answer, (std::optional<CommandLineResult>({u"pelko|--spark|a\nb ü"_s, 3})));
    }

    void afterTheFirstHasGoneTheNextIsTheOne()
    {
        const DataFolder data;
        {
            SingleInstance first(data.folder());
            QVERIFY(!first.lockOrForward({u"pelko"_s}));
            const InstanceServer server(data.folder(), echo);
        }
        SingleInstance next(data.folder());
        QVERIFY(!next.lockOrForward({u"pelko"_s}));
        QCOMPARE(DataFolder::filesIn(data.folder()), QStringList{u"instance.lock"_s});
    }

    void theLockOfAKilledOneDoesNotCount()
    {
        const DataFolder data;
        DataFolder::put(data.folder() / "instance.lock", "");
        SingleInstance next(data.folder());

        QVERIFY(!next.lockOrForward({u"pelko"_s}));
        QVERIFY(next.isLocked());
    }

    void aHolderThatIsKilledLetsGoAtOnce()
    {
        const DataFolder data;
        Holder holder(data.folder());
        QVERIFY(holder.isHolding);
        const int probe = ::open((data.folder() / "instance.lock").c_str(), O_RDWR | O_CLOEXEC);
        QVERIFY(::flock(probe, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK);
        ::close(probe);

        holder.kill();

        SingleInstance next(data.folder());
        QVERIFY(!next.lockOrForward({u"pelko"_s}));
        QVERIFY(next.isLocked() && !next.warning());
        const InstanceServer server(data.folder(), echo); // in the place of the socket that was left
        QVERIFY(settled(ask(data.folder(), {})));
    }

    void aFolderThatCannotBeLockedIsNotInTheWay()
    {
        SingleInstance instance("/proc/no such folder/Pelko");

        QVERIFY(!instance.lockOrForward({u"pelko"_s}));
        QVERIFY(!instance.isLocked() && instance.warning());
    }

    void aServerThatKeepsNoLocksIsWarnedOf_data()
    {
        QTest::addColumn<int>("error");
        QTest::newRow("no locks available") << ENOLCK;
        QTest::newRow("not supported") << EOPNOTSUPP;
    }

    void aServerThatKeepsNoLocksIsWarnedOf()
    {
        QFETCH(const int, error);
        const DataFolder data;
        SingleInstance instance(data.folder());
        lockError = error;
        const auto answer = instance.lockOrForward({u"pelko"_s});
        lockError = 0;

        QVERIFY(!answer && !instance.isLocked());
        QVERIFY(
            instance.warning().value_or(QString()).contains(QString::fromLocal8Bit(std::strerror(error))));
    }

    void theLockOfAnotherUserIsWarnedOf()
    {
        DataFolder data;
        SingleInstance first(data.folder());
        QVERIFY(!first.lockOrForward({u"pelko"_s}));
        if (::geteuid() != 0)
            QSKIP("Only the superuser can act for a second user.");
        data.openToEverybody();
        const Unprivileged user;
        SingleInstance second(data.folder());

        QVERIFY(!second.lockOrForward({u"pelko"_s}));
        QVERIFY(!second.isLocked() && second.warning());
    }

    void twoFoldersAreTwoInstances()
    {
        const DataFolder one;
        const DataFolder other;
        SingleInstance first(one.folder());
        SingleInstance second(other.folder());

        QVERIFY(!first.lockOrForward({u"pelko"_s}) && !second.lockOrForward({u"pelko"_s}));
        QVERIFY(first.isLocked() && second.isLocked());
    }

    void returnsNulloptWithoutListener()
    {
        const DataFolder data;
        QVERIFY(!askRunningInstance(data.folder(), {}));
    }

    void aSocketThatWasLeftBehindIsReplaced()
    {
        const DataFolder data;
        DataFolder::put(data.folder() / "instance.socket", "");
        const InstanceServer server(data.folder(), echo);

        QVERIFY(settled(ask(data.folder(), {})));
    }

    void aFolderThatWasRemovedIsListenedInAgain()
    {
        const DataFolder data;
        std::filesystem::create_directories(data.folder());
        InstanceServer server(data.folder(), echo);
        std::filesystem::remove_all(data.folder());
        QVERIFY(!askRunningInstance(data.folder(), {}));
        std::filesystem::create_directories(data.folder());
        server.listen();

        QVERIFY(settled(ask(data.folder(), {})));
    }

    void theSocketOfAnotherProcessIsNotRemoved()
    {
        const DataFolder data;
        std::filesystem::create_directories(data.folder());
        auto server = std::make_unique<InstanceServer>(data.folder(), echo);
        const InstanceServer other(data.folder(), echo);
        server.reset();

        QVERIFY(settled(ask(data.folder(), {})));
    }

    void theSocketIsForItsOwnerOnly()
    {
        const DataFolder data;
        std::filesystem::create_directories(data.folder());
        const InstanceServer server(data.folder(), echo);

        const auto permissions = std::filesystem::status(data.folder() / "instance.socket").permissions();
        QCOMPARE(permissions & (std::filesystem::perms::group_all | std::filesystem::perms::others_all),
                 std::filesystem::perms::none);
    }

    void aPathTooLongForASocketWorksTheSame()
    {
        DataFolder data;
        data.support /= std::string(200, 'x');
        std::filesystem::create_directories(data.folder());
        const InstanceServer server(data.folder(), echo);

        const auto answer = settled(ask(data.folder(), {"--spark", "far away"}));

        QVERIFY(answer);
        QCOMPARE(answer->text, std::string("pelko|--spark|far away"));
    }

    void aLargeSparkArrivesWhole()
    {
        const DataFolder data;
        std::filesystem::create_directories(data.folder());
        qsizetype size = 0;
        const InstanceServer server(data.folder(), [&size](const QStringList &arguments) {
            size = arguments.value(2).size();
            return CommandLineResult();
        });

        const auto answer = settled(ask(data.folder(), {"--spark", std::string(1'000'000, 'x')}));

        QVERIFY(answer);
        QCOMPARE(answer->exitCode, 0);
        QCOMPARE(size, 1'000'000);
    }

    void manyCallersAreAllAnswered()
    {
        const DataFolder data;
        std::filesystem::create_directories(data.folder());
        const InstanceServer server(data.folder(), echo);
        std::vector<std::future<std::optional<InstanceReply>>> callers;
        for (int i = 0; i < 20; ++i)
            callers.push_back(ask(data.folder(), {std::to_string(i)}));

        for (std::size_t i = 0; i < callers.size(); ++i) {
            const auto answer = settled(std::move(callers[i]));
            QVERIFY(answer);
            QCOMPARE(answer->text, "pelko|" + std::to_string(i));
        }
    }
};

PELKO_TEST(TestSingleInstance)
#include "tst_SingleInstance.moc"

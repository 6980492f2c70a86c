#include "Front/RunningInstance.h"
#include "Platform/DataFolder.h"
#include "Platform/InstanceServer.h"
#include "Platform/OnlyInstance.h"

#include <QTest>

#include <future>

using namespace Qt::StringLiterals;

namespace
{
/// The real client waits for its answer, so it asks from a thread of its own, as another process would.
std::future<std::optional<InstanceAnswer>> ask(const std::filesystem::path &folder,
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

/// An answer that repeats the question.
CommandLineAnswer echo(const QStringList &arguments)
{
    return {arguments.join('|'_L1), int(arguments.size())};
}
} // namespace

class TestOnlyInstance : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFirstIsTheOne()
    {
        const DataFolder data;
        OnlyInstance first(data.folder());

        QVERIFY(!first.yieldTo({u"pelko"_s}));
        QVERIFY(first.isLocked());
    }

    void theSecondYieldsWithTheAnswerOfTheFirst()
    {
        const DataFolder data;
        OnlyInstance first(data.folder());
        QVERIFY(!first.yieldTo({u"pelko"_s}));
        const InstanceServer server(data.folder(), echo);

        const auto answer = settled(std::async(std::launch::async, [&data] {
            return OnlyInstance(data.folder()).yieldTo({u"pelko"_s, u"--spark"_s, u"a\nb ü"_s});
        }));

        QCOMPARE(answer, (std::optional<CommandLineAnswer>({u"pelko|--spark|a\nb ü"_s, 3})));
    }

    void afterTheFirstHasGoneTheNextIsTheOne()
    {
        const DataFolder data;
        {
            OnlyInstance first(data.folder());
            QVERIFY(!first.yieldTo({u"pelko"_s}));
            const InstanceServer server(data.folder(), echo);
        }
        OnlyInstance next(data.folder());
        QVERIFY(!next.yieldTo({u"pelko"_s}));
        QCOMPARE(DataFolder::filesIn(data.folder()), QStringList{u"instance.lock"_s});
    }

    void theLockOfAKilledOneDoesNotCount()
    {
        const DataFolder data;
        DataFolder::put(data.folder() / "instance.lock", "");
        OnlyInstance next(data.folder());

        QVERIFY(!next.yieldTo({u"pelko"_s}));
        QVERIFY(next.isLocked());
    }

    void aFolderThatCannotBeLockedIsNotInTheWay()
    {
        OnlyInstance instance("/proc/no such folder/Pelko");

        QVERIFY(!instance.yieldTo({u"pelko"_s}));
        QVERIFY(!instance.isLocked());
    }

    void twoFoldersAreTwoInstances()
    {
        const DataFolder one;
        const DataFolder other;
        OnlyInstance first(one.folder());
        OnlyInstance second(other.folder());

        QVERIFY(!first.yieldTo({u"pelko"_s}) && !second.yieldTo({u"pelko"_s}));
        QVERIFY(first.isLocked() && second.isLocked());
    }

    void nobodyAnswersWhereNobodyListens()
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
            return CommandLineAnswer();
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
        std::vector<std::future<std::optional<InstanceAnswer>>> callers;
        for (int i = 0; i < 20; ++i)
            callers.push_back(ask(data.folder(), {std::to_string(i)}));

        for (std::size_t i = 0; i < callers.size(); ++i) {
            const auto answer = settled(std::move(callers[i]));
            QVERIFY(answer);
            QCOMPARE(answer->text, "pelko|" + std::to_string(i));
        }
    }
};

QTEST_GUILESS_MAIN(TestOnlyInstance)
#include "tst_OnlyInstance.moc"

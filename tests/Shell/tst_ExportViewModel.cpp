#include "Shell/CommandListModel.h"
#include "Shell/ExportViewModel.h"
#include "Store/AppState.h"
#include "Theme/PelkoVoice.h"
#include "support/DataFileText.h"
#include "support/ManualClock.h"
#include "support/ManualDesktop.h"
#include "support/ManualDocumentFile.h"
#include "support/ManualExportFolder.h"
#include "support/ManualScheduler.h"
#include "support/PageText.h"
#include "support/TestProgram.h"

#include <QSignalSpy>

using namespace PageText;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Existing = ExportFolder::Existing;
using Folders = QList<std::filesystem::path>;

namespace
{
ManualDocumentFile library()
{
    PelkoDocument open = page({block('A', BlockType::textLarge, u"Ridge"_s), image('B')});
    open.blocks << block('C', BlockType::textSmall, u"2*3*4"_s);
    PelkoDocument spark(Space::ideas, 1);
    spark.blocks = {block('A', BlockType::textSmall, u"a thought"_s)};
    ManualDocumentFile file;
    file.bytes = dataFileText({open, spark});
    return file;
}

struct ExportingProgram {
    ManualScheduler scheduler;
    ManualClock clock;
    ManualDocumentFile file = library();
    ManualDesktop desktop;
    ManualExportFolder folder;
    AppState appState{scheduler, clock, file};
    ExportViewModel exports{appState, {scheduler, desktop.fileChooser, folder, desktop.pasteboard}};
};
} // namespace

class TestExportViewModel : public QObject
{
    Q_OBJECT

    std::unique_ptr<ExportingProgram> m_program;

    ExportViewModel &exports() { return m_program->exports; }

    void chooseFolder(const std::filesystem::path &folder)
    {
        m_program->desktop.fileChooser.answer(Folders{folder});
    }
    void answer(const ExportFolder::Outcome &outcome) { m_program->folder.answer(outcome); }

    void exportDocumentTo(const std::filesystem::path &folder)
    {
        exports().exportDocument();
        chooseFolder(folder);
    }

    QStringList paths() const
    {
        QStringList found;
        for (const ExportedFile &file : m_program->folder.files)
            found << file.path;
        return found;
    }

private Q_SLOTS:
    void init() { m_program = std::make_unique<ExportingProgram>(); }

    void aFolderIsAskedForAndThePageWrittenThere()
    {
        exports().exportDocument();
        QCOMPARE(m_program->desktop.fileChooser.target, FileChooser::Target::folder);
        QCOMPARE(m_program->folder.asked, 0);

        chooseFolder("/home/me/Documents");
        QCOMPARE(m_program->folder.folder, std::filesystem::path("/home/me/Documents"));
        QCOMPARE(m_program->folder.existing, Existing::keep);

        answer(ExportFolder::Success{});
        QCOMPARE(paths(), (QStringList{u"Ridge.md"_s, u"Ridge 1.bin"_s}));
        QVERIFY(exports().showResult());
        QVERIFY(!exports().hasFailed());
        QCOMPARE(exports().resultTitle(), u"Exported."_s);
        QCOMPARE(exports().resultText(),
                 u"1 page and 1 picture in “Documents”. Plain Markdown, yours to keep."_s);

        exports().dismissResult();
        QVERIFY(!exports().showResult());
    }

    void theLibraryGoesIntoAFolderOfItsOwn_data()
    {
        QTest::addColumn<QString>("chosen");
        QTest::newRow("any folder") << u"/home/me/Documents"_s;
        QTest::newRow("the folder of the last time") << u"/home/me/Documents/Pelko"_s;
    }

    void theLibraryGoesIntoAFolderOfItsOwn()
    {
        QFETCH(QString, chosen);
        exports().exportLibrary();
        chooseFolder(chosen.toStdString());
        QCOMPARE(m_program->folder.folder, std::filesystem::path("/home/me/Documents/Pelko"));
        answer(ExportFolder::Success{});
        QCOMPARE(paths(), (QStringList{u"ideas/a thought.md"_s, u"work/Ridge.md"_s, u"work/Ridge 1.bin"_s}));
        QCOMPARE(exports().resultText(),
                 u"2 pages and 1 picture in “Pelko”. Plain Markdown, yours to keep."_s);
    }

    void withoutAnOpenPageThereIsNothingToExportOrCopy()
    {
        m_program->appState.setOpenDocumentID(std::nullopt);
        exports().exportDocument();
        exports().copyAsMarkdown();
        QCOMPARE(m_program->desktop.fileChooser.asked, 0);
        QCOMPARE(m_program->desktop.pasteboard.item, PasteboardItem());
    }

    void oneExportAtATime()
    {
        exports().exportDocument();
        exports().exportLibrary();
        QCOMPARE(m_program->desktop.fileChooser.asked, 1);
        chooseFolder("/a");
        exports().exportLibrary();
        QCOMPARE(m_program->desktop.fileChooser.asked, 1);
        answer(ExportFolder::Success{});
        exports().exportLibrary();
        QCOMPARE(m_program->desktop.fileChooser.asked, 2);
    }

    void cancelledChooserExportsNothing()
    {
        exports().exportDocument();
        m_program->desktop.fileChooser.answer(Folders{});
        QCOMPARE(m_program->folder.asked, 0);
        QVERIFY(!exports().showResult());
        exports().exportDocument();
        QCOMPARE(m_program->desktop.fileChooser.asked, 2);
    }

    void aChooserThatFailsIsTold()
    {
        exports().exportDocument();
        m_program->desktop.fileChooser.answer(FileError{u"It is gone"_s});
        QVERIFY(exports().hasFailed());
        QCOMPARE(exports().resultText(), u"Export failed: It is gone. Nothing was left behind."_s);
    }

    void aFailureIsToldInTheVoiceOfTheApp()
    {
        exportDocumentTo("/a");
        answer(FileError{u"No space left on device"_s});
        QVERIFY(exports().showResult());
        QVERIFY(exports().hasFailed());
        QVERIFY(PelkoVoice::errorPool().contains(exports().resultTitle()));
        QCOMPARE(exports().resultText(),
                 u"Export failed: No space left on device. Nothing was left behind."_s);
    }

    void existingFilesAreReplacedOnlyOnRequest()
    {
        exportDocumentTo("/home/me/notes");
        answer(ExportFolder::Conflicts{{u"Ridge.md"_s}});
        QVERIFY(exports().asksToReplace());
        QCOMPARE(exports().questionTitle(), u"Replace “Ridge.md”?"_s);
        QCOMPARE(exports().questionText(), u"“notes” has a file of that name."_s);
        QVERIFY(!exports().showResult());

        exports().replace();
        exports().keep(); // as dialogs do that are answered
        QVERIFY(!exports().asksToReplace());
        QCOMPARE(m_program->folder.existing, Existing::replace);
        answer(ExportFolder::Success{});
        QVERIFY(exports().showResult());
    }

    void manyFilesAreAskedAboutAtOnce()
    {
        exports().exportLibrary();
        chooseFolder("/home/me");
        answer(ExportFolder::Conflicts{{u"work/A.md"_s, u"work/A 1.png"_s, u"ideas/B.md"_s}});
        QCOMPARE(exports().questionTitle(), u"Replace 3 files?"_s);
        QCOMPARE(exports().questionText(), u"“Pelko” has files of these names, “A.md” for one."_s);
    }

    void whatIsThereIsKeptOtherwise()
    {
        exportDocumentTo("/a");
        answer(ExportFolder::Conflicts{{u"Ridge.md"_s}});
        exports().keep();
        QVERIFY(!exports().asksToReplace());
        QVERIFY(!exports().showResult());
        QCOMPARE(m_program->folder.asked, 1);
        exports().exportDocument();
        QCOMPARE(m_program->desktop.fileChooser.asked, 2);
    }

    void aLongExportIsShownAndCanBeStopped()
    {
        exportDocumentTo("/home/me/notes");
        m_program->scheduler.advance(499ms);
        QVERIFY(!exports().showProgress());
        m_program->scheduler.advance(1ms);
        QVERIFY(exports().showProgress());
        QCOMPARE(exports().progressText(), u"1 page and 1 picture on the way to “notes”."_s);

        exports().stop();
        QVERIFY(!exports().showProgress());
        QVERIFY(!m_program->folder.isWaitedFor());
        exports().exportDocument();
        QCOMPARE(m_program->desktop.fileChooser.asked, 2);
    }

    void progressGoesWhenTheExportIsDone()
    {
        exportDocumentTo("/a");
        m_program->scheduler.advance(1s);
        answer(ExportFolder::Success{});
        QVERIFY(!exports().showProgress());
        m_program->scheduler.advance(1s);
        QVERIFY(!exports().showProgress());
    }

    void anExportThatIsDoneCannotBeStopped()
    {
        exportDocumentTo("/a");
        answer(ExportFolder::Success{});
        exports().stop(); // as dialogs do that close
        QVERIFY(exports().showResult());
    }

    void exportsThePageThatWasOpenAtTheCommand()
    {
        exports().exportDocument();
        const PelkoDocument open = *m_program->appState.openDocument();
        m_program->appState.permanentlyDeleteDocument(open);
        chooseFolder("/a");
        answer(ExportFolder::Success{});
        QCOMPARE(paths(), (QStringList{u"Ridge.md"_s, u"Ridge 1.bin"_s}));
    }

    void theCommandsAreThereForWhatThereIs()
    {
        CommandListModel commands(MenuCommand::all());
        exports().bindTo(commands);
        commands.run(u"exportDocument"_s);
        QCOMPARE(m_program->desktop.fileChooser.asked, 1);
        m_program->desktop.fileChooser.answer(Folders{});
        commands.run(u"exportLibrary"_s);
        QCOMPARE(m_program->desktop.fileChooser.asked, 2);
        commands.run(u"copyAsMarkdown"_s);
        QVERIFY(!m_program->desktop.pasteboard.item.text.isEmpty());

        m_program->appState.setOpenDocumentID(std::nullopt);
        commands.refresh();
        QVERIFY(!commands.isEnabled(u"exportDocument"_s));
        QVERIFY(!commands.isEnabled(u"copyAsMarkdown"_s));
        QVERIFY(commands.isEnabled(u"exportLibrary"_s));
    }

    void withoutPagesThereIsNothingToExport()
    {
        ManualDocumentFile empty;
        AppState appState(m_program->scheduler, m_program->clock, empty);
        ExportViewModel none(appState, {m_program->scheduler, m_program->desktop.fileChooser,
                                        m_program->folder, m_program->desktop.pasteboard});
        CommandListModel commands(MenuCommand::all());
        none.bindTo(commands);
        QVERIFY(!commands.isEnabled(u"exportLibrary"_s));
        appState.captureSpark(u"a thought"_s);
        QVERIFY(commands.isEnabled(u"exportLibrary"_s));
    }

    void thePageIsCopiedAsMarkdown()
    {
        exports().copyAsMarkdown();
        const QString markdown = u"# Ridge\n\n2\\*3\\*4\n"_s;
        QCOMPARE(m_program->desktop.pasteboard.item,
                 (PasteboardItem{.text = markdown, .markdown = markdown}));
    }
};

PELKO_TEST(TestExportViewModel)
#include "tst_ExportViewModel.moc"

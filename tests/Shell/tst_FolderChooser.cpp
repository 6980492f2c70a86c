#include "Shell/FolderChooser.h"
#include "support/TestProgram.h"

#include "support/ManualPictureFolders.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace
{
namespace fs = std::filesystem;

QString written(const FileChooser::Choice &choice)
{
    QStringList names;
    for (const fs::path &file : std::get<QList<fs::path>>(choice))
        names << QString::fromStdString(file.string());
    return names.isEmpty() ? u"nothing"_s : names.join(u' ');
}
} // namespace

class TestFolderChooser : public QObject
{
    Q_OBJECT

    std::unique_ptr<ManualPictureFolders> folders;
    std::unique_ptr<FolderChooser> chooser;
    ScheduledCall request;
    FileChooser::Target wanted = FileChooser::Target::picture;
    QStringList choices;

    void choose()
    {
        request = chooser->choose(wanted,
                                  [this](const FileChooser::Choice &choice) { choices << written(choice); });
        folders->answer();
    }

    QStringList names() const
    {
        const auto &model = *qobject_cast<QAbstractItemModel *>(chooser->entries());
        QStringList found;
        for (int row = 0; row < model.rowCount(); ++row) {
            const QModelIndex index = model.index(row, 0);
            const bool isFolder = index.data(FolderEntryModel::IsFolderRole).toBool();
            found << index.data(FolderEntryModel::NameRole).toString() + (isFolder ? u"/"_s : QString());
        }
        return found;
    }

private Q_SLOTS:
    void init()
    {
        folders = std::make_unique<ManualPictureFolders>();
        folders->isSlow = true;
        chooser = std::make_unique<FolderChooser>(*folders);
        request = {};
        wanted = FileChooser::Target::picture;
        choices.clear();
    }

    void cleanup()
    {
        request = {};
        chooser.reset();
    }

    void itOpensInTheHomeFolder()
    {
        QVERIFY(!chooser->isOpen());
        choose();
        QVERIFY(chooser->isOpen());
        QCOMPARE(chooser->folder(), u"/home/me"_s);
        QCOMPARE(chooser->place(), 0);
        QCOMPARE(chooser->places(), (QStringList{u"me"_s, u"Pictures"_s}));
        QCOMPARE(names(), (QStringList{u"Pictures/"_s, u"cat.png"_s}));
    }

    void aFolderIsEnteredAndAPictureChosen()
    {
        choose();
        chooser->take(0);
        folders->answer();
        QCOMPARE(chooser->folder(), u"/home/me/Pictures"_s);
        chooser->take(2);
        QCOMPARE(choices, QStringList{u"/home/me/Pictures/bee.jpg"_s});
        QVERIFY(!chooser->isOpen());
    }

    void theFolderOnShowIsChosenWhereOneIsWanted()
    {
        wanted = FileChooser::Target::folder;
        choose();
        QVERIFY(chooser->wantsFolder());
        QCOMPARE(names(), QStringList{u"Pictures/"_s});
        chooser->take(0);
        folders->answer();
        QCOMPARE(names(), QStringList());
        QCOMPARE(chooser->folderName(), u"Pictures"_s);
        QCOMPARE(choices, QStringList());
        chooser->takeFolder();
        QCOMPARE(choices, QStringList{u"/home/me/Pictures"_s});
        QVERIFY(!chooser->isOpen());
    }

    void aFileIsNoFolder()
    {
        wanted = FileChooser::Target::folder;
        choose();
        chooser->goTo(u"cat.png"_s);
        folders->answer();
        QCOMPARE(chooser->problem(), u"That is a file, not a folder."_s);
        QCOMPARE(chooser->folder(), u"/home/me"_s);
        QCOMPARE(choices, QStringList());
    }

    void afterAFolderAPictureCanBeWantedAgain()
    {
        wanted = FileChooser::Target::folder;
        choose();
        chooser->cancel();
        wanted = FileChooser::Target::picture;
        choose();
        QVERIFY(!chooser->wantsFolder());
        QCOMPARE(names(), (QStringList{u"Pictures/"_s, u"cat.png"_s}));
    }

    void aRequestThatIsDroppedWhenTheNextIsMadeLeavesThatOpen()
    {
        choose();
        chooser->cancel();
        choose(); // and only now the former one goes
        QVERIFY(chooser->isOpen());
        QVERIFY(!chooser->isListing());
        chooser->take(1);
        QCOMPARE(choices, (QStringList{u"nothing"_s, u"/home/me/cat.png"_s}));
    }

    void itOpensAgainWhereItWas()
    {
        choose();
        chooser->take(0);
        folders->answer();
        chooser->cancel();
        choose();
        QCOMPARE(chooser->folder(), u"/home/me/Pictures"_s);
    }

    void goingUpBeginsWhereOneCameFrom()
    {
        choose();
        chooser->goToPlace(1);
        folders->answer();
        QSignalSpy listed(chooser.get(), &FolderChooser::listed);
        chooser->goUp();
        folders->answer();
        QCOMPARE(chooser->folder(), u"/home/me"_s);
        QCOMPARE(listed.value(0).value(0).toInt(), 0);
    }

    void fromTheTopThereIsNoWayUp()
    {
        choose();
        chooser->goTo(u"/"_s);
        folders->answer();
        QVERIFY(!chooser->canGoUp());
        chooser->goUp();
        folders->answer();
        QCOMPARE(chooser->folder(), u"/"_s);
    }

    void aTypedPathIsGoneTo_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("folder");
        QTest::newRow("whole") << u"/home"_s << u"/home"_s;
        QTest::newRow("home") << u"~"_s << u"/home/me"_s;
        QTest::newRow("in home") << u" ~/Pictures/ "_s << u"/home/me/Pictures"_s;
        QTest::newRow("from here") << u"Pictures"_s << u"/home/me/Pictures"_s;
        QTest::newRow("up") << u".."_s << u"/home"_s;
    }

    void aTypedPathIsGoneTo()
    {
        QFETCH(const QString, typed);
        QFETCH(const QString, folder);
        choose();
        chooser->goTo(typed);
        folders->answer();
        QCOMPARE(chooser->folder(), folder);
    }

    void aTypedFileIsChosen()
    {
        choose();
        chooser->goTo(u"cat.png"_s);
        folders->answer();
        QCOMPARE(choices, QStringList{u"/home/me/cat.png"_s});
    }

    void aFolderThatCannotBeShownSaysWhyAndTheOldOneStays()
    {
        choose();
        chooser->goTo(u"locked"_s);
        folders->answer();
        QCOMPARE(chooser->problem(), u"Permission denied"_s);
        QCOMPARE(chooser->folder(), u"/home/me"_s);
        chooser->take(0);
        folders->answer();
        QCOMPARE(chooser->problem(), QString());
    }

    void cancellingChoosesNothing()
    {
        choose();
        chooser->cancel();
        QCOMPARE(choices, QStringList{u"nothing"_s});
        QVERIFY(!chooser->isOpen());
    }

    void droppingTheRequestClosesTheChooserWithoutAWord()
    {
        choose();
        request = {};
        QVERIFY(!chooser->isOpen());
        QCOMPARE(choices, QStringList());
    }

    void lettersFindTheNextNameThatBeginsSo()
    {
        choose();
        chooser->goToPlace(1);
        folders->answer();
        QCOMPARE(chooser->rowStartingWith(u"b"_s, 0), 2);
        QCOMPARE(chooser->rowStartingWith(u"a"_s, 1), 1);
        QCOMPARE(chooser->rowStartingWith(u"AL"_s, 1), 0);
        QCOMPARE(chooser->rowStartingWith(u"z"_s, 0), -1);
    }

    void aRowThatIsNotThereChoosesNothing()
    {
        choose();
        chooser->take(-1);
        chooser->take(9);
        QVERIFY(chooser->isOpen());
    }
};

PELKO_TEST(TestFolderChooser)
#include "tst_FolderChooser.moc"

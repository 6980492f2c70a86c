#include "Platform/LocalPictureFolders.h"
#include "support/TestProgram.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

class TestLocalPictureFolders : public QObject
{
    Q_OBJECT

    QTemporaryDir folder;

    static PictureFolders::Listing list(const QString &path)
    {
        LocalPictureFolders folders;
        std::optional<PictureFolders::Listing> result;
        const ScheduledCall request =
            folders.list(QFile::encodeName(path).toStdString(),
                         [&](const PictureFolders::Listing &listing) { result = listing; });
        [&] { QTRY_VERIFY(result); }();
        return result.value_or(FileError{});
    }

private Q_SLOTS:
    void initTestCase()
    {
        QLocale::setDefault(QLocale(QLocale::English)); // bytes have no order that people know
        const QDir dir(folder.path());
        for (const char *name :
             {"photo 10.jpg", "Photo 9.JPG", "b.svg", "notes.txt", ".hidden.png", "a.heic"})
            QVERIFY(QFile(dir.filePath(QString::fromLatin1(name))).open(QIODevice::WriteOnly));
        QVERIFY(dir.mkdir(u"zoo"_s));
        QVERIFY(dir.mkdir(u"Album"_s));
        QVERIFY(dir.mkdir(u".cache"_s));
        QCOMPARE(::mkfifo(QFile::encodeName(dir.filePath(u"pipe.png"_s)).constData(), 0600), 0);
    }

    void foldersAndPicturesAreFoundByName()
    {
        const auto listing = list(folder.path());
        QStringList names;
        for (const auto &entry : std::get<QList<PictureFolders::Entry>>(listing))
            names << entry.name() + (entry.isFolder ? u"/"_s : QString());
        QCOMPARE(names, (QStringList{u"Album/"_s, u"zoo/"_s, u"a.heic"_s, u"b.svg"_s, u"Photo 9.JPG"_s,
                                     u"photo 10.jpg"_s}));
    }

    void aFileIsNoFolder()
    {
        QVERIFY(std::holds_alternative<PictureFolders::File>(list(folder.filePath(u"b.svg"_s))));
    }

    void aFolderThatIsNotThereSaysSo()
    {
        const auto listing = list(folder.filePath(u"gone"_s));
        QVERIFY(!std::get<FileError>(listing).description().isEmpty());
    }

    void theHomeFolderIsTheFirstPlace()
    {
        QCOMPARE(QString::fromStdString(LocalPictureFolders().places().value(0).string()), QDir::homePath());
    }
};

PELKO_TEST(TestLocalPictureFolders)
#include "tst_LocalPictureFolders.moc"

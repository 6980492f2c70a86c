#include "Editor/ImageImport.h"
#include "support/ManualDesktop.h"
#include "support/ManualScheduler.h"
#include "support/PageText.h"
#include "support/TestProgram.h"

#include <QSignalSpy>

using namespace PageText;
using namespace Qt::StringLiterals;

namespace
{
using Files = QList<std::filesystem::path>;

} // namespace

class TestImageImport : public QObject
{
    Q_OBJECT

    ManualScheduler scheduler;
    std::unique_ptr<ManualDesktop> desktop;
    std::unique_ptr<ImageImport> import;
    QStringList stored; // such as "A=bytes"

private Q_SLOTS:
    void init()
    {
        desktop = std::make_unique<ManualDesktop>();
        desktop->pictureFiles.files = {{"/one", "1"}, {"/two", "2"}};
        stored.clear();
        import = std::make_unique<ImageImport>(
            desktop->services(scheduler), [this](const QUuid &blockID, const QByteArray &bytes) {
                stored << nameOf(blockID) + u'=' + QString::fromUtf8(bytes);
            });
    }

    void cleanup() { import.reset(); }

    void askingOpensTheChooserForThatBlock()
    {
        const QSignalSpy changes(import.get(), &ImageImport::showImagePickerChanged);
        QVERIFY(!import->showImagePicker());
        import->addImage(id('A'));
        QVERIFY(import->showImagePicker());
        QCOMPARE(import->imageBlockID(), idOf('A'));
        QVERIFY(desktop->fileChooser.isOpen());
        QCOMPARE(changes.count(), 1);
    }

    void theChosenFileFillsTheBlock()
    {
        import->addImage(id('A'));
        desktop->fileChooser.answer(Files{"/one"});
        QCOMPARE(stored, QStringList{u"A=1"_s});
        QVERIFY(!import->showImagePicker());
        QVERIFY(!import->showImageImportError());
    }

    void theBlockIsRememberedAfterwards()
    {
        import->addImage(id('A'));
        desktop->fileChooser.answer(Files{"/one"});
        QCOMPARE(import->imageBlockID(), idOf('A'));
    }

    void onlyTheFirstFileIsTaken()
    {
        import->addImage(id('A'));
        desktop->fileChooser.answer(Files{"/two", "/one"});
        QCOMPARE(stored, QStringList{u"A=2"_s});
    }

    void cancellingChangesNothing()
    {
        import->addImage(id('A'));
        desktop->fileChooser.answer(Files{});
        QCOMPARE(stored, QStringList());
        QVERIFY(!import->showImagePicker());
        QVERIFY(!import->showImageImportError());
    }

    void aFileThatCannotBeReadIsGivenUpSilently()
    {
        import->addImage(id('A'));
        desktop->fileChooser.answer(Files{"/gone"});
        QCOMPARE(stored, QStringList());
        QVERIFY(!import->showImageImportError());
    }

    void aFailureOfTheChooserIsTold()
    {
        import->addImage(id('A'));
        desktop->fileChooser.answer(FileError{u"The disk has left."_s});
        QVERIFY(import->showImageImportError());
        QCOMPARE(import->imageImportError(), u"The disk has left."_s);
        QVERIFY(!import->showImagePicker());
    }

    void theAlertKeepsItsWordsWhileItGoesAway()
    {
        import->addImage(id('A'));
        desktop->fileChooser.answer(FileError{u"why"_s});
        import->dismissImageImportError();
        QVERIFY(!import->showImageImportError());
        QCOMPARE(import->imageImportError(), u"why"_s);
    }

    void failureWithoutMessageIsReported()
    {
        import->addImage(id('A'));
        desktop->fileChooser.answer(FileError{});
        QVERIFY(import->showImageImportError());
    }

    void anOpenChooserFillsTheBlockThatAskedLast()
    {
        import->addImage(id('A'));
        import->addImage(id('B'));
        QCOMPARE(desktop->fileChooser.asked, 1);
        desktop->fileChooser.answer(Files{"/one"});
        QCOMPARE(stored, QStringList{u"B=1"_s});
    }

    void aSlowFileStillFillsTheBlockItWasChosenFor()
    {
        desktop->pictureFiles.isSlow = true;
        import->addImage(id('A'));
        desktop->fileChooser.answer(Files{"/one"});
        import->addImage(id('B'));
        desktop->fileChooser.answer(Files{"/two"});
        QCOMPARE(stored, QStringList());
        desktop->pictureFiles.handOver();
        QCOMPARE(stored, (QStringList{u"A=1"_s, u"B=2"_s}));
    }

    void cancelClosesTheChooserAndForgetsWhatIsBeingRead()
    {
        desktop->pictureFiles.isSlow = true;
        import->addImage(id('A'));
        desktop->fileChooser.answer(Files{"/one"});
        import->addImage(id('B'));
        import->cancel();
        QVERIFY(!desktop->fileChooser.isOpen());
        QVERIFY(!import->showImagePicker());
        desktop->pictureFiles.handOver();
        QCOMPARE(stored, QStringList());
    }
};

PELKO_TEST(TestImageImport)
#include "tst_ImageImport.moc"

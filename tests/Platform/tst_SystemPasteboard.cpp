#include "Platform/SystemPasteboard.h"
#include "support/TestProgram.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>

using namespace Qt::StringLiterals;

namespace
{

const QMimeData *offered()
{
    return QGuiApplication::clipboard()->mimeData();
}

} // namespace

class TestSystemPasteboard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyFormIsOffered()
    {
        SystemPasteboard().put({.text = u"one"_s, .markdown = u"# one é"_s, .html = u"<h1>one</h1>"_s});
        QCOMPARE(offered()->text(), u"one"_s);
        QCOMPARE(offered()->data(u"text/markdown"_s), "# one \xC3\xA9"_ba);
        QCOMPARE(offered()->html(), u"<h1>one</h1>"_s);
    }

    void anEmptyFormIsNotOffered()
    {
        SystemPasteboard().put({.text = u"one"_s});
        QCOMPARE(offered()->formats(), QStringList{u"text/plain"_s});
    }

    void whatIsPutReplacesAllThatWasThere()
    {
        SystemPasteboard().put({.text = u"one"_s, .html = u"<p>one"_s});
        SystemPasteboard().put({.text = u"two"_s});
        QCOMPARE(SystemPasteboard().text(), u"two"_s);
        QVERIFY(!offered()->hasHtml());
    }

    void textOfOtherProgramsIsReadAsItIs()
    {
        QGuiApplication::clipboard()->setText(u"a\u00a0b\nc"_s);
        QCOMPARE(SystemPasteboard().text(), u"a\u00a0b\nc"_s);
    }

    void aPictureIsNoText()
    {
        auto *picture = new QMimeData;
        picture->setData(u"image/png"_s, "bytes"_ba);
        QGuiApplication::clipboard()->setMimeData(picture);
        QCOMPARE(SystemPasteboard().text(), QString());
    }

    void thePictureIsTheFileThatIsOffered()
    {
        auto *picture = new QMimeData;
        picture->setData(u"image/png"_s, "bytes"_ba);
        QGuiApplication::clipboard()->setMimeData(picture);
        QCOMPARE(SystemPasteboard().picture(), "bytes"_ba);
    }

    void aPictureWithoutAFileBecomesOne()
    {
        QImage image(2, 3, QImage::Format_RGB32);
        image.fill(Qt::red);
        auto *picture = new QMimeData;
        picture->setImageData(image);
        QGuiApplication::clipboard()->setMimeData(picture);
        QCOMPARE(QImage::fromData(SystemPasteboard().picture(), "PNG").convertToFormat(image.format()),
                 image);
    }

    void besideTextAPictureDoesNotCount()
    {
        auto *both = new QMimeData;
        both->setData(u"image/png"_s, "bytes"_ba);
        both->setText(u"words"_s);
        QGuiApplication::clipboard()->setMimeData(both);
        QCOMPARE(SystemPasteboard().picture(), QByteArray());
    }

    void anEmptyPasteboardHasNoPicture()
    {
        QGuiApplication::clipboard()->clear();
        QCOMPARE(SystemPasteboard().picture(), QByteArray());
    }
};

PELKO_TEST(TestSystemPasteboard)
#include "tst_SystemPasteboard.moc"

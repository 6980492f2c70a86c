#include "Platform/SystemPasteboard.h"
#include "support/TestProgram.h"

#include <QBuffer>
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

QByteArray redPicture(const char *format)
{
    QImage image(2, 3, QImage::Format_RGB32);
    image.fill(Qt::red);
    QBuffer buffer;
    image.save(&buffer, format);
    return buffer.data();
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

    void putReplacesAllFormats()
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

    void aPictureIsOfferedAsItsFileAndInOtherFormats()
    {
        const QByteArray file = redPicture("JPEG");
        SystemPasteboard().put({.picture = file});
        QCOMPARE(offered()->data(u"image/jpeg"_s), file);
        QCOMPARE(offered()->imageData().value<QImage>().size(), QSize(2, 3));
        QVERIFY(!offered()->hasText());
        QCOMPARE(SystemPasteboard().picture(), file);
    }

    void aPictureIsOfferedBesideItsText()
    {
        const QByteArray file = redPicture("PNG");
        SystemPasteboard().put({.text = u"words"_s, .picture = file});
        QCOMPARE(offered()->data(u"image/png"_s), file);
        QCOMPARE(SystemPasteboard().text(), u"words"_s);
    }

    void itemWithoutFormatsKeepsThePasteboard()
    {
        SystemPasteboard().put({.text = u"kept"_s});
        SystemPasteboard().put({});
        QCOMPARE(SystemPasteboard().text(), u"kept"_s);
        SystemPasteboard().put({.picture = "no picture"_ba});
        QCOMPARE(SystemPasteboard().text(), u"kept"_s);
    }

    void theSelectionIsApartFromWhatWasCopied()
    {
        if (!QGuiApplication::clipboard()->supportsSelection()) {
            SystemPasteboard().putSelectedText(u"selected"_s);
            QCOMPARE(SystemPasteboard().selectedText(), QString());
            return;
        }
        SystemPasteboard().put({.text = u"copied"_s});
        SystemPasteboard().putSelectedText(u"selected"_s);
        QCOMPARE(SystemPasteboard().selectedText(), u"selected"_s);
        QCOMPARE(SystemPasteboard().text(), u"copied"_s);
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

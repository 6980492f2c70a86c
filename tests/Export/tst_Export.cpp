#include "Export/Export.h"
#include "Export/PictureSuffix.h"
#include "support/PageText.h"
#include "support/TestProgram.h"

using namespace PageText;
using namespace Qt::StringLiterals;

namespace
{
const QByteArray png = "\x89PNG\r\n\x1a\n and so on"_ba;

PelkoDocument document(const QString &heading, Timestamp createdAt, Space space = Space::work)
{
    PelkoDocument made(space, createdAt);
    made.id = QUuid(uint(createdAt), 0, 0x4000, 0x80, 0, 0, 0, 0, 0, 0, 1);
    made.blocks = {block('A', BlockType::textLarge, heading)};
    return made;
}

QStringList paths(const QList<ExportedFile> &files)
{
    QStringList found;
    for (const ExportedFile &file : files)
        found << file.path;
    return found;
}

QString text(const PelkoDocument &document)
{
    return QString::fromUtf8(Export::page(document).constFirst().bytes);
}
} // namespace

class TestExport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aPageIsItsTextAndItsPictures()
    {
        PelkoDocument page = document(u"Ridge & co"_s, 816'000'000.25);
        page.updatedAt = 816'933'599.9803693;
        page.isPinned = true;
        page.isArchived = false;
        page.blocks << image('B') << image('C');
        page.blocks[1].imageData = png;

        const QByteArray markdown = "---\n"
                                    "title: \"Ridge & co\"\n"
                                    "space: work\n"
                                    "created: 2026-11-10T10:40:00.250Z\n"
                                    "updated: 2026-11-21T05:59:59.980Z\n"
                                    "pinned: true\n"
                                    "id: 30A32C00-0000-4000-8000-000000000001\n"
                                    "---\n"
                                    "\n"
                                    "# Ridge & co\n"
                                    "\n"
                                    "![](Ridge%20%26%20co%201.png)\n"
                                    "\n"
                                    "![](Ridge%20%26%20co%202.bin)\n"_ba;
        QCOMPARE(Export::page(page), (QList<ExportedFile>{{u"Ridge & co.md"_s, markdown},
                                                          {u"Ridge & co 1.png"_s, png},
                                                          {u"Ridge & co 2.bin"_s, "picture"_ba}}));
    }

    void theTitleIsQuotedAsYamlWantsIt()
    {
        QVERIFY(text(document(u"a \"b\" \\ c\n\u2028: #"_s, 1))
                    .startsWith(u"---\ntitle: \"a \\\"b\\\" \\\\ c\\u000a\\u2028: #\"\nspace: work\n"));
    }

    void aTimeBeyondTheCalendarIsLeftOut()
    {
        QVERIFY(!text(document(u"x"_s, 1e300)).contains(u"created"));
        QVERIFY(!text(document(u"x"_s, -1e12)).contains(u"created"));
        QVERIFY(text(document(u"x"_s, -978'307'200)).contains(u"created: 1970-01-01T00:00:00.000Z\n"));
    }

    void everySpaceHasItsFolder()
    {
        QCOMPARE(paths(Export::library({document(u"A"_s, 3, Space::journal), document(u"A"_s, 2),
                                        document(u"A"_s, 1, Space::ideas)})),
                 (QStringList{u"ideas/A.md"_s, u"work/A.md"_s, u"journal/A.md"_s}));
    }

    void theOldestKeepsThePlainNameInWhateverOrder()
    {
        const PelkoDocument older = document(u"A"_s, 1);
        const PelkoDocument newer = document(u"a"_s, 2);
        const QStringList expected{u"work/A.md"_s, u"work/a 00000002.md"_s};
        QCOMPARE(paths(Export::library({older, newer})), expected);
        QCOMPARE(paths(Export::library({newer, older})), expected);
    }

    void aPageWithoutATitleIsKnownByItsFirstWords_data()
    {
        QTest::addColumn<QList<Block>>("blocks");
        QTest::addColumn<QString>("path");
        QTest::newRow("a spark") << QList{block('A', BlockType::textSmall, u"a thought"_s)}
                                 << u"a thought.md"_s;
        QTest::newRow("blank before it")
            << QList{block('A', BlockType::textLarge), block('B', BlockType::quote, u" \n"_s),
                     sticky('C', {todo('x'), todo('y', u"milk"_s)})}
            << u"milk.md"_s;
        QTest::newRow("nothing at all") << QList<Block>{} << u"Untitled.md"_s;
    }

    void aPageWithoutATitleIsKnownByItsFirstWords()
    {
        QFETCH(QList<Block>, blocks);
        QTEST(Export::page(page(blocks)).constFirst().path, "path");
    }

    void pagesAndPicturesAreCounted()
    {
        PelkoDocument illustrated = page({image('A'), block('B', BlockType::image)});
        QCOMPARE(Export::contents({}), u"0 pages"_s);
        QCOMPARE(Export::contents({document(u"A"_s, 1)}), u"1 page"_s);
        QCOMPARE(Export::contents({illustrated, document(u"A"_s, 1)}), u"2 pages and 1 picture"_s);
        QCOMPARE(Export::contents({illustrated, illustrated}), u"2 pages and 2 pictures"_s);
    }

    void theFirstBytesTellTheFormatOfAPicture_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("suffix");
        const auto row = [](const char *suffix, const QByteArray &bytes) {
            QTest::newRow(suffix) << bytes << QString::fromLatin1(suffix);
        };
        row("png", png);
        row("jpg", "\xff\xd8\xff\xe0"_ba);
        row("gif", "GIF89a"_ba);
        row("webp", "RIFF\1\2\3\4WEBPVP8 "_ba);
        row("avif", QByteArray("\0\0\0\x1c"
                               "ftypavif",
                               12));
        row("heic", QByteArray("\0\0\0\x18"
                               "ftypheic",
                               12));
        row("heif", QByteArray("\0\0\0\x18"
                               "ftypmif1",
                               12));
        row("bmp", "BM\1\2"_ba);
        row("tif", QByteArray("MM\0*\1", 5));
        row("ico", QByteArray("\0\0\1\0\1", 5));
        row("jxl", "\xff\x0a\1"_ba);
        row("svg", "\xef\xbb\xbf<?xml version='1.0'?>\n<!-- x --><svg xmlns='x'/>"_ba);
        row("bin", "<html>no drawing</html>"_ba);
        QTest::newRow("little endian") << QByteArray("II*\0\1", 5) << u"tif"_s;
        QTest::newRow("a sound") << "RIFF\1\2\3\4WAVEfmt "_ba << u"bin"_s;
        QTest::newRow("cut short") << "RIFF\1\2"_ba << u"bin"_s;
        QTest::newRow("empty") << QByteArray() << u"bin"_s;
    }

    void theFirstBytesTellTheFormatOfAPicture()
    {
        QFETCH(QByteArray, bytes);
        QTEST(pictureSuffix(bytes), "suffix");
    }
};

PELKO_TEST(TestExport)
#include "tst_Export.moc"

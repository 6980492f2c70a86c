#include "Store/Base64.h"
#include "Store/Base64Vector.h"
#include "support/TestProgram.h"

#include <QRandomGenerator>

namespace
{
QByteArray encoded(const QByteArray &bytes)
{
    QByteArray text(longestEscapedBase64(bytes.size()), Qt::Uninitialized);
    const char *end = encodeEscapedBase64(bytes, text.data());
    text.truncate(end - text.constData());
    return text;
}

std::optional<QByteArray> decoded(const QByteArray &text)
{
    return decodeBase64({text.constData(), std::size_t(text.size())});
}
} // namespace

class TestBase64 : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textbookPairs_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("empty") << QByteArray("") << QByteArray("");
        QTest::newRow("f") << QByteArray("f") << QByteArray("Zg==");
        QTest::newRow("fo") << QByteArray("fo") << QByteArray("Zm8=");
        QTest::newRow("foo") << QByteArray("foo") << QByteArray("Zm9v");
        QTest::newRow("foob") << QByteArray("foob") << QByteArray("Zm9vYg==");
        QTest::newRow("fooba") << QByteArray("fooba") << QByteArray("Zm9vYmE=");
        QTest::newRow("foobar") << QByteArray("foobar") << QByteArray("Zm9vYmFy");
        QTest::newRow("plus") << QByteArray("\xFB\xEF\xBE") << QByteArray("++++");
    }

    void textbookPairs()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QByteArray, text);
        QCOMPARE(encoded(bytes), text);
        QCOMPARE(decoded(text), bytes);
    }

    void slashesAreEscaped()
    {
        QCOMPARE(encoded("\xFF\xFF\xFF"), R"(\/\/\/\/)");
        QCOMPARE(encoded("\xFF"), R"(\/w==)");
        QCOMPARE(encoded("\xFF\xFF"), R"(\/\/8=)");
        QCOMPARE(decoded("////"), "\xFF\xFF\xFF");
    }

    void everyLengthAgreesWithQtsCodec()
    {
        QRandomGenerator random(20010101);
        for (int length = 0; length < 300; ++length) {
            QByteArray bytes(length, Qt::Uninitialized);
            for (char &byte : bytes)
                byte = char(random.bounded(256));
            QCOMPARE(encoded(bytes), bytes.toBase64().replace("/", "\\/"));
            QCOMPARE(decoded(bytes.toBase64()), bytes);
        }
    }

    void everyEncoderOfTheProcessorAgreesWithQts()
    {
        QRandomGenerator random(20010102);
        for (const Base64Vector::Encoder encode : Base64Vector::encoders()) {
            for (int length = 0; length < 300; ++length) {
                QByteArray bytes(length, Qt::Uninitialized);
                for (char &byte : bytes)
                    byte = random.bounded(4) == 0 ? '\xFF' : char(random.bounded(256));
                QByteArray text(longestEscapedBase64(length), Qt::Uninitialized);
                const auto begun = encode(bytes.constData(), std::size_t(length), text.data());
                QVERIFY(begun.bytes % 3 == 0 && begun.bytes + 64 > std::size_t(length));
                text.truncate(begun.end - text.constData());
                QCOMPARE(text, bytes.first(qsizetype(begun.bytes)).toBase64().replace("/", "\\/"));
            }
        }
    }

    void writesOnlyIntoTheReservedBytes()
    {
        for (int length = 0; length < 200; ++length) {
            const qsizetype room = longestEscapedBase64(length);
            QByteArray text(room + 8, '#');
            encodeEscapedBase64(QByteArray(length, '\xFF'), text.data());
            QCOMPARE(text.sliced(room), "########");
        }
    }

    void bitsOfNoByteAreNotLookedAt() { QCOMPARE(decoded("Zh=="), "f"); }

    void rejectsMalformedBase64_data()
    {
        QTest::addColumn<QByteArray>("text");
        for (const char *text :
             {"Z",        "Zg",   "Zg=",      "Zm8",   "Zm9vY",      "Zg===", "=",        "====",    "Z===",
              "Zg==Zg==", "=m9v", "Zm=v",     "Z=9v",  "Zm9v ",      " Zm9v", "Zm\n9v",   "Zm9v\n",  "Zm9-",
              "Zm9_",     "Zm9.", "Zm9v====", "Zm9v=", "\xC3\xA4zz", "Zg\\=", "Zm9vZ=9v", "Zm9v!m9v"})
            QTest::newRow(QByteArray(text).toPercentEncoding("=").constData()) << QByteArray(text);
        QTest::newRow("NUL") << QByteArray("Zm\0v", 4);
    }

    void rejectsMalformedBase64()
    {
        QFETCH(QByteArray, text);
        QCOMPARE(decoded(text), std::nullopt);
    }
};

PELKO_TEST(TestBase64)
#include "tst_Base64.moc"

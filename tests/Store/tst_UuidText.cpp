#include "Store/UuidText.h"
#include "support/TestProgram.h"

using namespace Qt::StringLiterals;

class TestUuidText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theTextIsUpperCaseWithHyphens()
    {
        const QUuid uuid(u"{0a1b2c3d-4e5f-6789-abcd-ef0123456789}"_s);
        const UuidText text = uuidToText(uuid);
        QCOMPARE(std::string_view(text.data(), text.size()), "0A1B2C3D-4E5F-6789-ABCD-EF0123456789");
    }

    void eitherCaseIsRead()
    {
        const QUuid uuid(u"{0a1b2c3d-4e5f-6789-abcd-ef0123456789}"_s);
        QCOMPARE(uuidFromText("0A1B2C3D-4E5F-6789-ABCD-EF0123456789"), uuid);
        QCOMPARE(uuidFromText("0a1b2c3d-4e5f-6789-abcd-ef0123456789"), uuid);
        QCOMPARE(uuidFromText("0a1B2c3D-4e5F-6789-aBcD-eF0123456789"), uuid);
        QCOMPARE(uuidFromText("00000000-0000-0000-0000-000000000000"), QUuid());
    }

    void otherFormsAreRejected_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("empty") << QByteArray("");
        QTest::newRow("braces") << QByteArray("{0A1B2C3D-4E5F-6789-ABCD-EF0123456789}");
        QTest::newRow("no hyphens") << QByteArray("0A1B2C3D4E5F6789ABCDEF0123456789");
        QTest::newRow("36 digits") << QByteArray("0A1B2C3D04E5F067890ABCD0EF0123456789");
        QTest::newRow("hyphen elsewhere") << QByteArray("0A1B2C3-D4E5F-6789-ABCD-EF0123456789");
        QTest::newRow("not a digit") << QByteArray("0A1B2C3D-4E5F-6789-ABCD-EF012345678G");
        QTest::newRow("at sign") << QByteArray("@A1B2C3D-4E5F-6789-ABCD-EF0123456789");
        QTest::newRow("space before") << QByteArray(" 0A1B2C3D-4E5F-6789-ABCD-EF012345678");
        QTest::newRow("too long") << QByteArray("0A1B2C3D-4E5F-6789-ABCD-EF01234567890");
        QTest::newRow("too short") << QByteArray("0A1B2C3D-4E5F-6789-ABCD-EF012345678");
    }

    void otherFormsAreRejected()
    {
        QFETCH(QByteArray, text);
        QCOMPARE(uuidFromText(std::string_view(text.constData(), std::size_t(text.size()))), std::nullopt);
    }
};

PELKO_TEST(TestUuidText)
#include "tst_UuidText.moc"

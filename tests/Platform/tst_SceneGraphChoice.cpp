#include "Platform/SceneGraphChoice.h"
#include "support/TestProgram.h"

#include <QTemporaryDir>

using namespace Qt::StringLiterals;

class TestSceneGraphChoice : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
#ifndef Q_OS_LINUX
        QSKIP("Only Linux lists its render nodes.");
#endif
    }

    void drawsInSoftwareWithoutAnyDevice() { QVERIFY(prefersSoftware()); }

    void drawsInSoftwareWithoutTheFolderOfDevices()
    {
        QVERIFY(prefersSoftwareSceneGraph(QProcessEnvironment(), QDir(m_folder.filePath(u"missing"_s))));
    }

    void drawsInSoftwareWithADisplayThatCannotRender()
    {
        addDevice(u"card0"_s);

        QVERIFY(prefersSoftware());
    }

    void leavesTheChoiceToQtWithARenderNode()
    {
        addDevice(u"renderD128"_s);

        QVERIFY(!prefersSoftware());
    }

    void leavesTheChoiceToTheEnvironment_data()
    {
        QTest::addColumn<QString>("variable");
        QTest::newRow("scene graph") << u"QT_QUICK_BACKEND"_s;
        QTest::newRow("scene graph, old name") << u"QMLSCENE_DEVICE"_s;
        QTest::newRow("graphics interface") << u"QSG_RHI_BACKEND"_s;
        QTest::newRow("rasteriser") << u"LIBGL_ALWAYS_SOFTWARE"_s;
    }

    void leavesTheChoiceToTheEnvironment()
    {
        QFETCH(QString, variable);
        m_environment.insert(variable, u"1"_s);

        QVERIFY(!prefersSoftware());
    }

    void cleanup()
    {
        m_environment.clear();
        for (const QString &device : QDir(m_folder.path()).entryList(QDir::Files))
            QVERIFY(QFile::remove(m_folder.filePath(device)));
    }

private:
    bool prefersSoftware() const { return prefersSoftwareSceneGraph(m_environment, m_folder.path()); }

    void addDevice(const QString &name)
    {
        QFile device(m_folder.filePath(name));
        QVERIFY(device.open(QIODevice::WriteOnly));
    }

    QTemporaryDir m_folder;
    QProcessEnvironment m_environment;
};

PELKO_TEST(TestSceneGraphChoice)
#include "tst_SceneGraphChoice.moc"

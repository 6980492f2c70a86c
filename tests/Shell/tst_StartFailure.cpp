#include "Shell/StartFailure.h"
#include "support/TestProgram.h"

using namespace Qt::StringLiterals;

class TestStartFailure : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesTheMissingModule()
    {
        const QString errors = u"qrc:/WindowContent.qml:28 Type LaunchView unavailable\n"
                               "qrc:/BlockList.qml:4:1: module \"Qt.labs.qmlmodels\" is not installed\n"_s;
        QCOMPARE(startFailure(errors),
                 u"Pelko cannot start. It needs the QML module Qt.labs.qmlmodels, which is not installed."_s);
    }

    void namesEachModuleOnce()
    {
        const QString errors = u"a.qml:1:1: module \"QtQuick.Window\" is not installed\n"
                               "a.qml:2:1: module \"QtQuick.Templates\" version 2.15 is not installed\n"
                               "b.qml:1:1: module \"QtQuick.Window\" is not installed"_s;
        QCOMPARE(startFailure(errors),
                 u"Pelko cannot start. It needs these QML modules, which are not installed: "
                 "QtQuick.Window, QtQuick.Templates."_s);
    }

    void passesOtherErrorsOn()
    {
        QCOMPARE(startFailure(u"a.qml:3:5: Type Ring unavailable\n"_s),
                 u"Pelko cannot start:\na.qml:3:5: Type Ring unavailable"_s);
    }
};

PELKO_TEST(TestStartFailure)
#include "tst_StartFailure.moc"

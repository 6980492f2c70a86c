#include "PelkoApp.h"

#include <QtQml/QQmlExtensionPlugin>

Q_IMPORT_QML_PLUGIN(PelkoPlugin)

using namespace Qt::StringLiterals;

PelkoApp::PelkoApp()
{
    m_engine.addImportPath(u"qrc:/qt/qml"_s);
    m_engine.load(QUrl(u"qrc:/qt/qml/Pelko/Views/Shell/PelkoWindow.qml"_s));
}

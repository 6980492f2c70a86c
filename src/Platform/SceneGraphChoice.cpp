#include "Platform/SceneGraphChoice.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

bool prefersSoftwareSceneGraph(const QProcessEnvironment &environment, const QDir &deviceFolder)
{
#ifdef Q_OS_LINUX
    const std::array wishes{u"QT_QUICK_BACKEND"_s, u"QMLSCENE_DEVICE"_s, u"QSG_RHI_BACKEND"_s,
                            u"LIBGL_ALWAYS_SOFTWARE"_s};
    const bool isDecided =
        std::ranges::any_of(wishes, [&](const QString &name) { return environment.contains(name); });
    return !isDecided && deviceFolder.entryList({u"renderD*"_s}, QDir::System | QDir::Files).isEmpty();
#else
    Q_UNUSED(environment)
    Q_UNUSED(deviceFolder)
    return false;
#endif
}

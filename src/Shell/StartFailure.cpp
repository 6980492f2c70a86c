#include "Shell/StartFailure.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace
{
/// Returns each module once, in the order of the errors.
QStringList missingModules(const QString &errors)
{
    static const QRegularExpression missing(u"module \"([^\"]+)\"(?: version \\S+)? is not installed"_s);
    QStringList modules;
    for (const QRegularExpressionMatch &match : missing.globalMatch(errors))
        modules.append(match.captured(1));
    modules.removeDuplicates();
    return modules;
}
} // namespace

QString startFailure(const QString &errors)
{
    const QStringList modules = missingModules(errors);
    if (modules.isEmpty())
        return QCoreApplication::translate("StartFailure", "Pelko cannot start:") + u'\n' + errors.trimmed();
    //: The number is not told: %1 lists the modules.
    return QCoreApplication::translate(
               "StartFailure", "Pelko cannot start. It needs these QML modules, which are not installed: %1.",
               nullptr, int(modules.size()))
        .arg(modules.join(u", "_s));
}

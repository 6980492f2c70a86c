#include "Shell/StartFailure.h"

#include <QRegularExpression>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace
{
/// Each module once, in the order in which they are missed.
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
        return u"Pelko cannot start:\n"_s + errors.trimmed();
    const QString what = modules.size() == 1 ? u"the QML module %1, which is not installed."_s
                                             : u"these QML modules, which are not installed: %1."_s;
    return u"Pelko cannot start. It needs "_s + what.arg(modules.join(u", "_s));
}

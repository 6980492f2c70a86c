#include "Models/Space.h"

#include <QCoreApplication>

#include <algorithm>

using namespace Qt::StringLiterals;

QString rawValue(Space space)
{
    switch (space) {
    case Space::ideas:
        return u"ideas"_s;
    case Space::work:
        return u"work"_s;
    case Space::journal:
        return u"journal"_s;
    }
    Q_UNREACHABLE();
}

QString displayName(Space space)
{
    switch (space) {
    case Space::ideas:
        return QCoreApplication::translate("Space", "Ideas");
    case Space::work:
        return QCoreApplication::translate("Space", "Work");
    case Space::journal:
        return QCoreApplication::translate("Space", "Journal");
    }
    Q_UNREACHABLE();
}

std::optional<Space> spaceFromRawValue(QAnyStringView raw)
{
    const auto found = std::ranges::find_if(allSpaces, [raw](Space space) { return rawValue(space) == raw; });
    return found == allSpaces.end() ? std::nullopt : std::optional(*found);
}

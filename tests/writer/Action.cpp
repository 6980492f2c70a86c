#include "writer/Action.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace
{

constexpr std::array names{
    "key"_L1,
    "type"_L1,
    "paste"_L1,
    "pastePicture"_L1,
    "compose"_L1,
    "cancelComposing"_L1,
    "startComposing"_L1,
    "click"_L1,
    "doubleClick"_L1,
    "shiftClick"_L1,
    "clickBelow"_L1,
    "dragSelection"_L1,
    "dragBlock"_L1,
    "press"_L1,
    "wheel"_L1,
    "wait"_L1,
    "undoAll"_L1,
    "openPage"_L1,
    "find"_L1,
    "quickAdd"_L1,
    "tickTask"_L1,
    "deleteTask"_L1,
    "spark"_L1,
    "failDisk"_L1,
    "mendDisk"_L1,
    "restart"_L1,
    "kill"_L1,
    "resize"_L1,
};

} // namespace

QString nameOf(const Action &action)
{
    return names.at(static_cast<std::size_t>(action.kind));
}

QByteArray lineOf(const Action &action)
{
    QJsonArray line{nameOf(action)};
    if (!action.text.isEmpty())
        line.append(action.text);
    for (const double number : action.numbers)
        line.append(number);
    return QJsonDocument(line).toJson(QJsonDocument::Compact);
}

std::optional<Action> actionFrom(const QByteArray &line)
{
    const QJsonArray values = QJsonDocument::fromJson(line).array();
    const auto name = std::ranges::find(names, values.at(0).toString());
    if (name == names.end())
        return std::nullopt;
    Action action{.kind = static_cast<Action::Kind>(name - names.begin())};
    for (qsizetype index = 1; index < values.size(); ++index) {
        if (values.at(index).isString())
            action.text = values.at(index).toString();
        else
            action.numbers.append(values.at(index).toDouble());
    }
    return action;
}

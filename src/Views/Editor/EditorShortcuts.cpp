#include "EditorShortcuts.h"

#include "EditorKeys.h"

using namespace Qt::StringLiterals;

namespace
{

QStringList keyCaps(const EditorKeyBinding &binding)
{
    QStringList keys = binding.text().split(u'+');
    for (QString &key : keys) {
        if (key == u"Up"_s)
            key = u"↑"_s;
        else if (key == u"Down"_s)
            key = u"↓"_s;
    }
    return keys;
}

} // namespace

QList<ShortcutLine> EditorShortcuts::lines()
{
    QList<ShortcutLine> lines{{.title = u"Writing"_s}};
    for (const EditorKeyBinding &binding : editorKeyBindings()) {
        if (binding.title)
            lines.append({.title = QString::fromUtf8(binding.title), .keys = keyCaps(binding)});
    }
    return lines + editingKeys() + typingMarkers();
}

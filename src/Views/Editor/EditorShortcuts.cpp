#include "EditorShortcuts.h"

#include "EditorKeys.h"
#include "Shell/KeyNames.h"

#include <QCoreApplication>

QList<ShortcutLine> EditorShortcuts::lines()
{
    QList<ShortcutLine> lines{{.title = tr("Writing")}};
    for (const EditorKeyBinding &binding : editorKeyBindings()) {
        if (binding.title)
            lines.append({.title = QCoreApplication::translate("EditorKeys", binding.title),
                          .keys = keyNames(binding.text())});
    }
    return lines + editingKeys() + typingMarkers();
}

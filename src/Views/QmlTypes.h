#pragma once

#include "Editor/EditorViewModel.h"
#include "Editor/PictureBytes.h"
#include "Editor/TextAddress.h"
#include "Shell/ExportViewModel.h"
#include "Shell/FolderChooser.h"
#include "Shell/LaunchSequence.h"
#include "Shell/MainViewModel.h"

#include <QtQml/qqml.h>

/// QML_FOREIGN registrations of the store and the view models, which do not depend on QtQml.
struct AppStateForQml {
    Q_GADGET
    QML_FOREIGN(AppState)
    QML_NAMED_ELEMENT(AppState)
    QML_UNCREATABLE("The one store.")
};

struct MainViewModelForQml {
    Q_GADGET
    QML_FOREIGN(MainViewModel)
    QML_NAMED_ELEMENT(MainViewModel)
    QML_UNCREATABLE("Handed in by the program.")
};

struct EditorViewModelForQml {
    Q_GADGET
    QML_FOREIGN(EditorViewModel)
    QML_NAMED_ELEMENT(EditorViewModel)
    QML_UNCREATABLE("Handed in by the program.")
};

struct TodoListModelForQml {
    Q_GADGET
    QML_FOREIGN(TodoListModel)
    QML_NAMED_ELEMENT(TodoListModel)
    QML_UNCREATABLE("Part of an editor.")
};

struct BlockDragForQml {
    Q_GADGET
    QML_FOREIGN(BlockDrag)
    QML_NAMED_ELEMENT(BlockDrag)
    QML_UNCREATABLE("Part of an editor.")
};

struct PageSelectionForQml {
    Q_GADGET
    QML_FOREIGN(PageSelection)
    QML_NAMED_ELEMENT(PageSelection)
    QML_UNCREATABLE("Part of an editor.")
};

struct TextAddressForQml {
    Q_GADGET
    QML_FOREIGN(TextAddress)
    QML_VALUE_TYPE(textAddress)
};

struct PictureBytesForQml {
    Q_GADGET
    QML_FOREIGN(PictureBytes)
    QML_VALUE_TYPE(pictureBytes)
};

struct ImageImportForQml {
    Q_GADGET
    QML_FOREIGN(ImageImport)
    QML_NAMED_ELEMENT(ImageImport)
    QML_UNCREATABLE("Part of an editor.")
};

struct WritingKeysForQml {
    Q_GADGET
    QML_FOREIGN(WritingKeys)
    QML_NAMED_ELEMENT(WritingKeys)
    QML_UNCREATABLE("Part of an editor.")
};

struct LaunchSequenceForQml {
    Q_GADGET
    QML_FOREIGN(LaunchSequence)
    QML_NAMED_ELEMENT(LaunchSequence)
    QML_UNCREATABLE("Handed in by the program.")
};

struct ExportViewModelForQml {
    Q_GADGET
    QML_FOREIGN(ExportViewModel)
    QML_NAMED_ELEMENT(ExportViewModel)
    QML_UNCREATABLE("Handed in by the program.")
};

struct FolderChooserForQml {
    Q_GADGET
    QML_FOREIGN(FolderChooser)
    QML_NAMED_ELEMENT(FolderChooser)
    QML_UNCREATABLE("Handed in by the program.")
};

struct QuitGuardForQml {
    Q_GADGET
    QML_FOREIGN(QuitGuard)
    QML_NAMED_ELEMENT(QuitGuard)
    QML_UNCREATABLE("Part of the main window.")
};

struct ShellCommandsForQml {
    Q_GADGET
    QML_FOREIGN(ShellCommands)
    QML_NAMED_ELEMENT(ShellCommands)
    QML_UNCREATABLE("Part of the main window's view model.")
};

struct ShortcutLineForQml {
    Q_GADGET
    QML_FOREIGN(ShortcutLine)
    QML_VALUE_TYPE(shortcutLine)
};

struct CommandListModelForQml {
    Q_GADGET
    QML_FOREIGN(CommandListModel)
    QML_NAMED_ELEMENT(CommandListModel)
    QML_UNCREATABLE("Part of the commands.")
};

struct CommandMenuForQml {
    Q_GADGET
    QML_FOREIGN(CommandMenu)
    QML_NAMED_ELEMENT(CommandMenu)
    QML_UNCREATABLE("Part of the commands.")
};

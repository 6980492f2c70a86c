#pragma once

#include "Editor/EditorViewModel.h"
#include "Platform/LocalPictureFiles.h"
#include "Platform/LocalPictureFolders.h"
#include "Platform/QtScheduler.h"
#include "Platform/SystemPasteboard.h"
#include "Services/EditorServices.h"
#include "Shell/FolderChooser.h"

/// What the program hands to its editors.
struct RealEditorServices {
    QtScheduler scheduler;
    SystemPasteboard pasteboard;
    LocalPictureFiles pictureFiles;
    LocalPictureFolders folders;
    FolderChooser chooser{folders};
    const EditorServices forEditor{scheduler, pasteboard, chooser, pictureFiles};
};

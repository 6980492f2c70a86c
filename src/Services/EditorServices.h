#pragma once

class FileChooser;
class Pasteboard;
class PictureFiles;
class Scheduler;

/// The services that an editor uses. They must outlive it.
struct EditorServices {
    Scheduler &scheduler;
    Pasteboard &pasteboard;
    FileChooser &fileChooser;
    PictureFiles &pictureFiles;
};

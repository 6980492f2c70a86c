#pragma once

class FileChooser;
class Pasteboard;
class PictureFiles;
class Scheduler;

/// What editors need of the desktop they run on. All of it outlives them.
struct EditorServices {
    Scheduler &scheduler;
    Pasteboard &pasteboard;
    FileChooser &fileChooser;
    PictureFiles &pictureFiles;
};

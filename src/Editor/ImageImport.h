#pragma once

#include "Services/EditorServices.h"
#include "Services/FileChooser.h"

#include <QObject>
#include <QUuid>

#include <map>

/// Imports pictures from the user's files into image blocks. A failure of the chooser is reported to the
/// user; a file that cannot be read leaves the block unchanged.
class ImageImport : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool showImagePicker READ showImagePicker NOTIFY showImagePickerChanged)
    Q_PROPERTY(bool showImageImportError READ showImageImportError NOTIFY showImageImportErrorChanged)
    Q_PROPERTY(QString imageImportError READ imageImportError NOTIFY imageImportErrorChanged)

public:
    /// Stores the bytes of a picture in a block, which may have been deleted meanwhile.
    using Store = std::function<void(const QUuid &blockID, const QByteArray &bytes)>;

    ImageImport(const EditorServices &services, Store store);

    /// Whether the chooser is open.
    bool showImagePicker() const { return m_showImagePicker; }
    /// The block that the chooser was last opened for.
    const QUuid &imageBlockID() const { return m_imageBlockID; }
    bool showImageImportError() const { return m_showImageImportError; }
    /// The error in words for the user. Keeps its value after it was dismissed.
    QString imageImportError() const { return m_imageImportError.description(); }

    /// Asks for a picture for the block. If the chooser is already open, its result goes to this block
    /// instead.
    Q_INVOKABLE void addImage(const QString &blockID);
    Q_INVOKABLE void dismissImageImportError();
    /// Closes the chooser and drops the files that are being read.
    void cancel();

Q_SIGNALS:
    void showImagePickerChanged();
    void showImageImportErrorChanged();
    void imageImportErrorChanged();

private:
    void take(const FileChooser::Choice &choice);
    void read(const std::filesystem::path &file);
    void setShowImagePicker(bool shown);

    FileChooser &m_chooser;
    PictureFiles &m_files;
    const Store m_store;

    bool m_showImagePicker = false;
    QUuid m_imageBlockID;
    bool m_showImageImportError = false;
    FileError m_imageImportError;
    ScheduledCall m_choosing;
    std::map<QUuid, ScheduledCall> m_readings; // by the id of the block that is waiting
};

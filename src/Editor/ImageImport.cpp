#include "Editor/ImageImport.h"

#include "Services/PictureFiles.h"
#include "Store/ChangeScope.h"

ImageImport::ImageImport(const EditorServices &services, Store store)
    : m_chooser(services.fileChooser)
    , m_files(services.pictureFiles)
    , m_store(std::move(store))
{
}

void ImageImport::addImage(const QString &blockID)
{
    m_imageBlockID = QUuid(blockID);
    if (m_showImagePicker)
        return;
    setShowImagePicker(true);
    m_choosing = m_chooser.choose(FileChooser::Target::picture,
                                  [this](const FileChooser::Choice &choice) { take(choice); });
}

void ImageImport::take(const FileChooser::Choice &choice)
{
    setShowImagePicker(false);
    if (const auto *failure = std::get_if<FileError>(&choice)) {
        ChangeScope changes(*this);
        changes.assign(m_imageImportError, *failure, &ImageImport::imageImportErrorChanged);
        changes.assign(m_showImageImportError, true, &ImageImport::showImageImportErrorChanged);
        return;
    }
    const auto &files = std::get<QList<std::filesystem::path>>(choice);
    if (!files.isEmpty())
        read(files.first());
}

void ImageImport::read(const std::filesystem::path &file)
{
    const QUuid blockID = m_imageBlockID;
    m_readings[blockID] = m_files.read(file, [this, blockID](const std::optional<QByteArray> &bytes) {
        if (bytes)
            m_store(blockID, *bytes);
    });
}

void ImageImport::dismissImageImportError()
{
    ChangeScope(*this).assign(m_showImageImportError, false, &ImageImport::showImageImportErrorChanged);
}

void ImageImport::cancel()
{
    m_choosing.cancel();
    m_readings.clear();
    setShowImagePicker(false);
}

void ImageImport::setShowImagePicker(bool shown)
{
    ChangeScope(*this).assign(m_showImagePicker, shown, &ImageImport::showImagePickerChanged);
}

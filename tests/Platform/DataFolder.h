#pragma once

#include "Platform/LocalDocumentFile.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <fstream>

/// A temporary data folder on the real disk, with the file as the program uses it. The destructor removes it
/// with its contents.
class DataFolder : public DataLocation
{
    QTemporaryDir m_directory; // declared first, because `support` is inside

public:
    using Path = std::filesystem::path;

    DataFolder() : support(Path(m_directory.path().toStdString()) / "support") {}
    ~DataFolder() override { std::filesystem::remove_all(support); } // QTemporaryDir fails at odd names
    Q_DISABLE_COPY_MOVE(DataFolder)

    Path support;

    Path folder() const { return support / "Pelko"; }
    Path file() const { return folder() / "data.json"; }

    std::optional<Path> applicationSupportDirectory() const override { return support; }

    QByteArray read() { return std::get<QByteArray>(LocalDocumentFile(*this).read()); }
    QString readError() { return std::get<FileError>(LocalDocumentFile(*this).read()).description(); }
    bool isMissing()
    {
        return std::holds_alternative<DocumentFile::Missing>(LocalDocumentFile(*this).read());
    }

    /// Replaces the file as the program does. Returns the error, or an empty text.
    QString replace(const QByteArray &bytes = "new")
    {
        LocalDocumentFile file(*this);
        auto error = file.replace([&](ByteSink &sink) { return sink.write(bytes); });
        if (!error)
            error = file.confirm();
        return error ? error->description() : QString();
    }

    /// Writes a file directly and creates its folder.
    static void put(const Path &file, const char *text)
    {
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file) << text;
    }

    static QByteArray contents(const Path &file)
    {
        std::ifstream stream(file, std::ios::binary);
        return QByteArray::fromStdString({std::istreambuf_iterator<char>(stream), {}});
    }

    /// Sorted; hidden ones too.
    static QStringList filesIn(const Path &folder)
    {
        return QDir(QString::fromStdString(folder))
            .entryList(QDir::Files | QDir::Hidden | QDir::System, QDir::Name);
    }

    void openToEverybody()
    {
        for (const Path &each : {support.parent_path(), support, folder()}) {
            if (std::filesystem::exists(each))
                std::filesystem::permissions(each, std::filesystem::perms(0777));
        }
    }

    void verifyOnlyTheOldFile() const
    {
        QCOMPARE(contents(file()), "old");
        QCOMPARE(filesIn(folder()), {QStringLiteral("data.json")});
    }
};

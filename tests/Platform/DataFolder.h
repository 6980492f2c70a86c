#pragma once

#include "Platform/LocalDocumentFile.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <fstream>

/// A data folder of its own on the real disk, with the file in it as the program would use it. Removed in the
/// end, whatever is in it.
class DataFolder : public DataLocation
{
    QTemporaryDir m_directory; // first, for `support` lies in it

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

    /// Has the program replace the file. What was told; an empty string when all went well.
    QString replace(const QByteArray &bytes = "new")
    {
        LocalDocumentFile file(*this);
        auto error = file.replace([&](ByteSink &sink) { return sink.write(bytes); });
        if (!error)
            error = file.confirm();
        return error ? error->description() : QString();
    }

    /// Makes a file and its folder by other means than the program's.
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

// The files of the disk, under their paths in UTF-8, and pictures from files of any kind that the toolkit can read.
#pragma once
#include <QFile>
#include <QImage>
#include <QString>
#include <string>

#include "platform/files.h"

class QtFiles : public Files {
public:
    std::string ReadAll(const std::string& path) override;
    std::unique_ptr<OutputFile> OpenForWriting(const std::string& path) override;
};

bool FlushToDisk(const QFile& file);
QString SystemPath(const std::string& path);  // as the toolkit takes it

bool IsPicture(const std::string& bytes);      // by its head; what follows may yet be spoiled
QImage ReadPicture(const std::string& bytes);  // null if it cannot be read

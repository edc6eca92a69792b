// The files of the disk, under their paths in UTF-8.
#pragma once
#include <QFile>
#include <QString>

#include "platform/files.h"

class QtFiles : public Files {
public:
    std::string ReadAll(const std::string& path) override;
    std::unique_ptr<OutputFile> OpenForWriting(const std::string& path) override;
};

bool FlushToDisk(const QFile& file);
QString SystemPath(const std::string& path);  // as the toolkit takes it

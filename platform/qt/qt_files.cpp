#include "platform/qt/qt_files.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>

#include "platform/failure.h"
#include "platform/qt/look.h"

#ifdef Q_OS_WIN
#include <io.h>
#else
#include <unistd.h>
#endif

namespace {
class QtOutputFile : public OutputFile {
public:
    explicit QtOutputFile(const QString& path) : file_(path) {
        if (!file_.open(QIODevice::ReadWrite | QIODevice::Unbuffered)) throw Failure(kFileError);
    }

    void Replace(std::string_view bytes) override {
        const std::size_t taken = file_.resize(0) && file_.seek(0) ? Write(bytes) : 0;
        const bool is_whole = taken == bytes.size() && FlushToDisk(file_);
        file_.close();
        if (!is_whole) throw WriteFailure(taken);
    }

private:
    // How many of the bytes the disk took.
    std::size_t Write(std::string_view bytes) {
        std::size_t taken = 0;
        while (taken < bytes.size()) {
            const qint64 written = file_.write(bytes.data() + taken, static_cast<qint64>(bytes.size() - taken));
            if (written <= 0) break;
            taken += static_cast<std::size_t>(written);
        }
        return taken;
    }

    QFile file_;
};
}  // namespace

bool FlushToDisk(const QFile& file) {
#ifdef Q_OS_WIN
    return _commit(file.handle()) == 0;
#else
    return fsync(file.handle()) == 0;
#endif
}

QString SystemPath(const std::string& path) {
    return ToQt(path).replace(u'\\', u'/');  // which separates folders everywhere there
}

std::string QtFiles::ReadAll(const std::string& path) {
    const QFileInfo info(SystemPath(path));
    QFile file(info.filePath());
    const bool is_sheet_like = info.isFile() && info.size() <= static_cast<qint64>(kLargestFile);
    if (!is_sheet_like || !file.open(QIODevice::ReadOnly)) throw Failure(kFileError);
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError) throw Failure(kFileError);
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

std::unique_ptr<OutputFile> QtFiles::OpenForWriting(const std::string& path) {
    return std::make_unique<QtOutputFile>(SystemPath(path));
}

// ---- Pictures ----

namespace {
QByteArray View(const std::string& bytes) {
    return QByteArray::fromRawData(bytes.data(), static_cast<int>(bytes.size()));
}
}  // namespace

bool IsPicture(const std::string& bytes) {
    QByteArray view = View(bytes);
    QBuffer buffer(&view);
    return QImageReader(&buffer).size().isValid();
}

QImage ReadPicture(const std::string& bytes) {
    return QImage::fromData(View(bytes));
}

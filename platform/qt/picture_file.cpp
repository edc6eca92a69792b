#include "platform/qt/picture_file.h"

#include <QBuffer>
#include <QImageReader>

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

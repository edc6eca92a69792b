#include "platform/qt/qt_file_dialogs.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontMetrics>
#include <QStandardPaths>

#include "platform/qt/boxes.h"
#include "platform/qt/paths.h"

namespace {
constexpr QSize kSizeInLines(46, 28);

// "DataFile(*.csv)|*.csv": what is said, then the pattern; Qt takes the pattern from the brackets.
QString NameFilter(const std::string& filter) {
    return ToQt(filter).section(u'|', 0, 0).replace(QLatin1String("("), QLatin1String(" (")).simplified();
}

QString Suffix(const std::string& filter) {
    return ToQt(filter).section(QLatin1String("*."), -1);
}
}  // namespace

std::optional<std::string> QtFileDialogs::Ask(const FileQuestion& question) {
    const BoxOpens opens(renderer_);
    const bool saves = question.kind == FileQuestion::Kind::Save;
    const QFileInfo proposed(SystemPath(question.proposed_name));
    if (folder_.isEmpty()) folder_ = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    if (!QFileInfo(folder_).isDir()) folder_ = QDir::homePath();
    const bool has_folder = proposed.isAbsolute() && proposed.dir().exists();

    QFileDialog dialog(opens.Parent(), saves ? QStringLiteral("Save as") : QStringLiteral("Open"), has_folder ? proposed.path() : folder_);
    dialog.setFont(opens.Font());
    dialog.resize(kSizeInLines * QFontMetrics(opens.Font()).height());
    dialog.setAcceptMode(saves ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(saves ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    dialog.setNameFilter(NameFilter(question.filter));
    dialog.setDefaultSuffix(Suffix(question.filter));
    dialog.setOption(QFileDialog::DontConfirmOverwrite, !question.ask_before_overwriting);
    if (!proposed.fileName().isEmpty() && (saves || proposed.exists())) dialog.selectFile(proposed.fileName());
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
    const QString path = dialog.selectedFiles().constFirst();
    folder_ = QFileInfo(path).path();
    return FromQt(path);
}

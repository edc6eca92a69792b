#include "platform/qt/qt_dialogs.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontMetrics>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QRegularExpressionValidator>
#include <QScreen>
#include <QSplitter>
#include <QStandardPaths>
#include <QTreeView>
#include <algorithm>

#include "platform/qt/held_keys.h"
#include "platform/qt/look.h"
#include "platform/qt/qt_files.h"
#include "platform/qt/renderer.h"
#include "platform/qt/shown_text.h"
#include "platform/qt/window_widget.h"

BoxOpens::BoxOpens(Renderer& renderer) {
    renderer.Sync();
    WindowWidget* const active = renderer.ActiveWidget();
    const bool is_seen = active && active->isVisible();
    if (is_seen) parent_ = active;
    font_ = PlainFont(is_seen ? active->Factor() : CommonFactor(*QApplication::primaryScreen()));
}

namespace {
constexpr int kDeafMs = 250;

QMessageBox::Icon IconOf(Icon icon) {
    switch (icon) {
        case Icon::Exclamation:
            return QMessageBox::Warning;
        case Icon::Information:
            return QMessageBox::Information;
        case Icon::Question:
            return QMessageBox::Question;
        default:
            return QMessageBox::NoIcon;
    }
}

QMessageBox::StandardButtons ButtonsOf(Buttons buttons) {
    switch (buttons) {
        case Buttons::YesNo:
            return QMessageBox::Yes | QMessageBox::No;
        case Buttons::YesNoCancel:
            return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
        default:
            return QMessageBox::Ok;
    }
}

QMessageBox::StandardButton ButtonOfClosing(Buttons buttons) {
    switch (buttons) {
        case Buttons::YesNo:
            return QMessageBox::No;
        case Buttons::YesNoCancel:
            return QMessageBox::Cancel;
        default:
            return QMessageBox::Ok;
    }
}

// The analyst looks down the microscope and types on when a box opens: what was on its way to the counter does not answer it. A key that
// is held, a key in the first moment and a letter alone do nothing here.
class QuestionBox : public QMessageBox {
public:
    using QMessageBox::QMessageBox;

protected:
    void showEvent(QShowEvent* event) override {
        for (QAbstractButton* button : buttons()) button->installEventFilter(this);
        QMessageBox::showEvent(event);
    }
    void paintEvent(QPaintEvent* event) override {
        if (!seen_.isValid()) seen_.start();
        QMessageBox::paintEvent(event);
    }
    bool eventFilter(QObject* watched, QEvent* event) override {
        return (event->type() == QEvent::KeyPress && IsStray(*static_cast<QKeyEvent*>(event))) || QMessageBox::eventFilter(watched, event);
    }
    void keyPressEvent(QKeyEvent* event) override {
        if (!IsStray(*event)) QMessageBox::keyPressEvent(event);
    }

private:
    bool IsStray(const QKeyEvent& key) const {
        const bool letter =
            key.key() >= Qt::Key_A && key.key() <= Qt::Key_Z && !(key.modifiers() & (Qt::AltModifier | Qt::ControlModifier));
        return IsRepeat(key) || letter || !seen_.isValid() || seen_.elapsed() < kDeafMs;
    }

    QElapsedTimer seen_;  // since it was first on the screen
};
}  // namespace

Answer QtMessageBoxes::Show(const Message& message) {
    const BoxOpens opens(renderer_);
    QuestionBox box(opens.Parent());
    box.setFont(opens.Font());
    box.setWindowTitle(Brief(message.title));
    box.setTextFormat(Qt::PlainText);
    box.setText(Brief(message.text, kMostAtRest));
    box.setIcon(IconOf(message.icon));
    box.setStandardButtons(ButtonsOf(message.buttons));
    if (message.loses_work) box.setDefaultButton(QMessageBox::No);
    box.setEscapeButton(ButtonOfClosing(message.buttons));
    box.exec();
    switch (box.standardButton(box.clickedButton())) {
        case QMessageBox::Yes:
            return Answer::Yes;
        case QMessageBox::No:
            return Answer::No;
        case QMessageBox::Cancel:
            return Answer::Cancel;
        default:
            return Answer::Ok;
    }
}

namespace {
constexpr QSize kSizeInLines(52, 28);
constexpr const char* kQuotationMark =
    "A file with a quotation mark (\") in its name or in that of a folder cannot be used. Please choose another one.";

// "DataFile(*.csv)|*.csv": what is said, then the pattern; Qt takes the pattern from the brackets.
QString NameFilter(const std::string& filter) {
    return ToQt(filter).section(u'|', 0, 0).replace(QLatin1String("("), QLatin1String(" (")).simplified();
}

QString Suffix(const std::string& filter) {
    return ToQt(filter).section(QLatin1String("*."), -1);
}

// Refuses paths with quotation marks: the toolkit takes what stands between two of them for the name of a file, and a sheet, which holds
// its own path, could not be read again.
class FileBox : public QFileDialog {
public:
    FileBox(QWidget* parent, const QString& title, const QString& folder)
        : QFileDialog(parent, title, folder), line_(findChild<QLineEdit*>("fileNameEdit")) {
        if (!line_) return;
        FitColumns();
        line_->setValidator(new QRegularExpressionValidator(QRegularExpression("[^\"]*"), line_));
        connect(line_, &QLineEdit::inputRejected, this, &FileBox::Refuse);
    }

protected:
    // The places beside the list are as wide as what they are called.
    void showEvent(QShowEvent* event) override {
        auto* const parts = findChild<QSplitter*>("splitter");
        const auto* const places = findChild<QListView*>("sidebar");
        if (parts && places) {
            const int wide = std::min(places->sizeHintForColumn(0) + 2 * places->frameWidth(), width() / 4);
            parts->setSizes({wide, width() - wide});
        }
        QFileDialog::showEvent(event);
    }
    void accept() override {
        const QString name = line_ ? line_->text() : selectedFiles().value(0);
        if (!(directory().path() + name).contains(u'"')) return QFileDialog::accept();
        Refuse();
        if (!line_) reject();
    }

private:
    // Each column is as wide as what it shows; the names have the rest.
    void FitColumns() {
        auto* const files = findChild<QTreeView*>("treeView");
        if (!files) return;
        files->header()->setStretchLastSection(false);
        files->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
        files->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    }

    void Refuse() { QuestionBox(QMessageBox::Warning, windowTitle(), QString::fromUtf8(kQuotationMark), QMessageBox::Ok, this).exec(); }

    QLineEdit* line_;  // nullptr: the desktop shows a dialog of its own, which is gone when a file has been chosen
};
}  // namespace

std::optional<std::string> QtFileDialogs::Ask(const FileQuestion& question) {
    const BoxOpens opens(renderer_);
    const bool saves = question.kind == FileQuestion::Kind::Save;
    const QFileInfo proposed(SystemPath(question.proposed_name));
    if (folder_.isEmpty()) folder_ = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    if (!QFileInfo(folder_).isDir()) folder_ = QDir::homePath();
    const bool has_folder = proposed.isAbsolute() && proposed.dir().exists();
    const QString first = SystemPath(question.first_folder);
    const QString folder = QFileInfo(first).isDir() ? first : has_folder ? proposed.path() : folder_;

    FileBox dialog(opens.Parent(), saves ? QStringLiteral("Save as") : QStringLiteral("Open"), folder);
    dialog.setFont(opens.Font());
    dialog.resize(kSizeInLines * QFontMetrics(opens.Font()).height());
    dialog.setAcceptMode(saves ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(saves ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    dialog.setNameFilter(NameFilter(question.filter));
    dialog.setDefaultSuffix(Suffix(question.filter));
    dialog.setOption(QFileDialog::DontConfirmOverwrite, !question.ask_before_overwriting);
    const QString name = proposed.fileName();
    if (!name.isEmpty() && (saves || QDir(folder).exists(name))) dialog.selectFile(name);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
    const QString path = dialog.selectedFiles().constFirst();
    folder_ = QFileInfo(path).path();
    return ProgramPath(path);
}

// What is typed into a file dialog is the file that the program hears of, or none is.
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QTimer>
#include <QTreeView>
#include <algorithm>

#include "platform/qt/qt_dialogs.h"
#include "unit_qt/on_screen_test.h"

namespace {
class FileDialogsTest : public OnScreenTest {
protected:
    std::string Path(const std::string& name) const { return folder_.path().toStdString() + "/" + name; }
    void Make(const std::string& name) {
        QFile file(QString::fromStdString(Path(name)));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    }

    static void Type(QLineEdit& line, const std::string& name) {
        line.setFocus();
        line.selectAll();
        line.insert(QString::fromStdString(name));
    }
    // Types the name, presses Enter, closes whatever message comes up, and then the dialog if it is still there.
    std::optional<std::string> Typed(FileQuestion::Kind kind, const std::string& name, const std::string& proposed = "") {
        bool is_typed = false, is_answered = false;
        message_.clear();
        QTimer user;
        user.callOnTimeout([&] {
            QWidget* const front = QApplication::activeModalWidget();
            if (auto* const box = qobject_cast<QMessageBox*>(front)) {
                message_ = box->text();
                return box->reject();
            }
            auto* const dialog = qobject_cast<QFileDialog*>(front);
            if (!dialog) return;
            if (!is_typed) {
                is_typed = true;
                QTimer::singleShot(0, dialog, [&, dialog] {  // out of this timer, which does not run inside itself
                    if (!name.empty()) Type(*dialog->findChild<QLineEdit*>("fileNameEdit"), name);
                    QMetaObject::invokeMethod(dialog, "accept");
                    is_answered = true;
                });
            } else if (is_answered) {
                dialog->reject();
            }
        });
        user.start(0);
        const FileQuestion question{kind, "DataFile(*.csv)|*.csv", proposed, true, folder_.path().toStdString()};
        return dialogs_.Ask(question);
    }
    // Opens the dialog until what is waited for is so.
    bool Shows(const std::function<bool(QFileDialog&)>& what) {
        constexpr int kLimitMs = 20'000;
        bool is_so = false;
        QElapsedTimer waits;
        waits.start();
        QTimer user;
        user.callOnTimeout([&] {
            auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            if (!dialog) return;
            is_so = what(*dialog);
            if (is_so || waits.elapsed() > kLimitMs) dialog->reject();
        });
        user.start(0);
        dialogs_.Ask({FileQuestion::Kind::Open, "DataFile(*.csv)|*.csv", "", true, folder_.path().toStdString()});
        return is_so;
    }
    std::optional<std::string> SavedAs(const std::string& name) { return Typed(FileQuestion::Kind::Save, name); }
    std::optional<std::string> Opened(const std::string& name) { return Typed(FileQuestion::Kind::Open, name); }

    QTemporaryDir folder_;
    QString message_;  // the last one that came up

private:
    QtFileDialogs dialogs_{renderer_};
};

TEST_F(FileDialogsTest, APlainNameIsTheFileAndGetsItsEnding) {
    Make("old.csv");
    EXPECT_EQ(SavedAs("Mere"), Path("Mere.csv"));
    EXPECT_EQ(SavedAs("Lake A.csv"), Path("Lake A.csv"));
    EXPECT_EQ(Opened("old.csv"), Path("old.csv"));
    EXPECT_EQ(Opened("none.csv"), std::nullopt);
    EXPECT_EQ(SavedAs("old.csv"), std::nullopt) << "it asks before it writes over a file";
    EXPECT_FALSE(message_.isEmpty());
}

// The toolkit takes quotation marks for the ends of the names in a list.
TEST_F(FileDialogsTest, ANameWithQuotationMarksIsRefusedAndNoOtherTaken) {
    Make("old.csv");
    Make("a\"old.csv\"b.csv");
    for (const char* name : {"Core \"old\" 2", "\"old.csv\"", "\"old.csv\" \"new.csv\"", "old.csv\"", "\"", "a\"old.csv\"b.csv"}) {
        EXPECT_EQ(SavedAs(name), std::nullopt) << name;
        EXPECT_TRUE(message_.contains("quotation mark")) << name << ": " << message_.toStdString();
        EXPECT_EQ(Opened(name), std::nullopt) << name;
        EXPECT_TRUE(message_.contains("quotation mark")) << name << ": " << message_.toStdString();
    }
}

TEST_F(FileDialogsTest, SizeTypeAndDateAreShownWholeAndTheNameHasTheRest) {
    for (const char* name : {"a.csv", "b.csv", "c.csv"}) Make(name);
    EXPECT_TRUE(Shows([](QFileDialog& dialog) {
        const auto& files = *dialog.findChild<QTreeView*>("treeView");
        const QAbstractItemView& columns = files;
        int wide = files.header()->sectionSize(0);
        for (int column = 1; column <= 3; ++column) {
            if (files.header()->sectionSize(column) < columns.sizeHintForColumn(column)) return false;
            wide += files.header()->sectionSize(column);
        }
        return files.model()->rowCount(files.rootIndex()) == 3 && wide == files.viewport()->width();
    }));
}

TEST_F(FileDialogsTest, ThePlacesBesideTheListAreShownWhole) {
    EXPECT_TRUE(Shows([](QFileDialog& dialog) {
        const auto& places = *dialog.findChild<QListView*>("sidebar");
        return places.viewport()->width() >= std::min(places.sizeHintForColumn(0), dialog.width() / 4);
    }));
}

TEST_F(FileDialogsTest, AProposedNameWithThemIsRefusedToo) {
    Make("old.csv");
    Make("a\"old.csv\"b.csv");
    EXPECT_EQ(Typed(FileQuestion::Kind::Save, "", Path("a\"old.csv\"b.csv")), std::nullopt);
    EXPECT_TRUE(message_.contains("quotation mark"));
}
}  // namespace

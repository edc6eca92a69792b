#include "platform/qt/qt_message_boxes.h"

#include <QAbstractButton>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QMessageBox>

#include "platform/qt/boxes.h"
#include "platform/qt/held_keys.h"
#include "platform/qt/look.h"

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
    box.setWindowTitle(ToQt(message.title));
    box.setTextFormat(Qt::PlainText);
    box.setText(ToQt(message.text));
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

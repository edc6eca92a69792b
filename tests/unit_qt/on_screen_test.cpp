#include "unit_qt/on_screen_test.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "events/program.h"
#include "platform/qt/accessible.h"
#include "platform/qt/style.h"
#include "platform/qt/window_widget.h"
#include "unit/shared_state.h"

OnScreenTest::OnScreenTest(double density) : is_scaled_(qputenv("QT_SCALE_FACTOR", QByteArray::number(density))) {
    WipeSharedState();
    ApplyLook(application_);
    OpenToReaders();
    ::services.files = &files_;
    files_.LayDownProgram(kFolder);
    Do(StartProgram);
}

OnScreenTest::~OnScreenTest() {
    for (Window* window : AllWindows()) window->Unload();
    qunsetenv("QT_SCALE_FACTOR");
}

void OnScreenTest::Do(const std::function<void()>& act) {
    renderer_.Run(act);
    QApplication::processEvents();
}

ControlWidget& OnScreenTest::Shown(const Control& control) const {
    return *renderer_.WidgetOf(*control.window)->Find(control);
}

Screens::Screens(const QList<QRect>& places) {
    QJsonArray screens;
    for (const QRect& place : places)
        screens.append(QJsonObject{{"name", QString("screen %1").arg(screens.size() + 1)},
                                   {"x", place.x()},
                                   {"y", place.y()},
                                   {"width", place.width()},
                                   {"height", place.height()},
                                   {"logicalDpi", 96},
                                   {"dpr", 1}});
    QFile file(folder_.filePath("screens"));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QJsonDocument(QJsonObject{{"screens", screens}}).toJson());
    QDir::setCurrent(folder_.path());  // a whole path may have a colon, where the toolkit would part it
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=screens");
}

Screens::~Screens() {
    QDir::setCurrent(before_);
    qputenv("QT_QPA_PLATFORM", "offscreen");
}

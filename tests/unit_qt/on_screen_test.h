// The ground of the tests that need the program on real widgets: started, its start window open, its files in memory.
#pragma once
#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QList>
#include <QRect>
#include <QTemporaryDir>
#include <functional>

#include "platform/headless/headless_services.h"
#include "platform/qt/control_widget.h"
#include "platform/qt/renderer.h"
#include "unit/memory_files.h"

class OnScreenTest : public testing::Test {
protected:
    explicit OnScreenTest(double density = 1);  // pixels of the screen to a pixel of the toolkit
    ~OnScreenTest() override;

    void Do(const std::function<void()>& act);  // one event, with all that follows from it
    ControlWidget& Shown(const Control& control) const;

private:
    static constexpr const char* kFolder = "/program";
    char name_[5] = "test";
    char* arguments_[1] = {name_};
    int count_ = 1;
    bool is_scaled_;  // before the application starts

protected:
    QApplication application_{count_, arguments_};
    HeadlessServices services_{kFolder};
    MemoryFiles files_;
    Renderer renderer_;
};

// The screens of the machine, in their own pixels: "screen 1", "screen 2" ... A base before OnScreenTest, as they are there before the
// application starts.
class Screens {
protected:
    explicit Screens(const QList<QRect>& places);
    ~Screens();

private:
    QTemporaryDir folder_;
    QString before_ = QDir::currentPath();
};

#include "platform/qt/unasked_end.h"

#include <QEvent>
#include <QEventLoop>
#include <QtGlobal>
#include <csignal>
#include <cstdlib>
#include <stdexcept>
#include <thread>

#include "unit_qt/on_screen_test.h"
#include "windows/next_window.h"

namespace {
class UnaskedEndTest : public OnScreenTest {};

TEST_F(UnaskedEndTest, TheEndOfTheDesktopSessionClosesNoWindowAsItsUserWould) {
    int acts = 0;
    {
        const UnaskedEnd end([&acts] { ++acts; });
        QEvent quit(QEvent::Quit);
        QCoreApplication::sendEvent(qApp, &quit);
        EXPECT_EQ(acts, 1);
        EXPECT_TRUE(frmNext.Visible());
    }
    EXPECT_EQ(acts, 1);
}

void SayThatTheDisplayIsGone() {
    qWarning("The Wayland connection broke.");
}

TEST_F(UnaskedEndTest, ADisplayThatAnotherThreadLosesIsHeardInThatOfTheWindows) {
    QEventLoop loop;
    std::thread::id heard_in;
    const UnaskedEnd end([&loop, &heard_in] {
        heard_in = std::this_thread::get_id();
        loop.quit();
    });
    std::thread other(SayThatTheDisplayIsGone);
    loop.exec();
    other.join();
    EXPECT_EQ(heard_in, std::this_thread::get_id());
}

TEST_F(UnaskedEndTest, AThreadThatLosesTheDisplayDoesNotWaitForEverForOneThatWaitsForIt) {
    int acts = 0;
    {
        const UnaskedEnd end([&acts] { ++acts; });
        std::thread(SayThatTheDisplayIsGone).join();
        EXPECT_EQ(acts, 0);
    }
    QCoreApplication::processEvents();
    EXPECT_EQ(acts, 0) << "the end is no longer waited for";
}

#ifndef Q_OS_WIN
void FailInAnotherThread() {
    constexpr int kActed = 7;
    const UnaskedEnd end([] { std::_Exit(kActed); });
    const std::thread other([] { throw std::runtime_error("nothing catches this"); });
    QEventLoop().exec();
}

TEST_F(UnaskedEndTest, AFailureInAnyThreadIsHeardInThatOfTheWindows) {
    testing::GTEST_FLAG(death_test_style) = "threadsafe";  // the program has threads already
    EXPECT_EXIT(FailInAnotherThread(), testing::ExitedWithCode(7), "");
}

TEST_F(UnaskedEndTest, ASignalThatItsStarterHasItIgnoreStaysIgnored) {
    std::signal(SIGHUP, SIG_IGN);
    {
        const UnaskedEnd end([] {});
        struct sigaction now {};
        sigaction(SIGHUP, nullptr, &now);
        EXPECT_EQ(now.sa_handler, SIG_IGN);
    }
    EXPECT_EQ(std::signal(SIGHUP, SIG_DFL), SIG_IGN);
}
#endif
}  // namespace

// Quitting and stopping: who may be quit, every question and toast, the
// force offered (never sent) after an ignored SIGTERM, and the live actions.

#include "actions/ActionFlow.h"
#include "actions/FakeActions.h"
#include "actions/LiveActions.h"
#include "support/ChildProcess.h"

#include <QClipboard>
#include <QGuiApplication>
#include <gtest/gtest.h>

#include <csignal>
#include <fstream>
#include <map>
#include <optional>
#include <sys/wait.h>
#include <unistd.h>

using namespace vexel;

namespace {

constexpr uint32_t me = 1000;
constexpr int32_t vexelPid = 777;

AppGroup app(const std::string& name, AppKind kind, int helpers, uint32_t uid = me, int32_t mainPid = 500)
{
    AppGroup group;
    group.id = "app:" + name;
    group.name = name;
    group.kind = kind;
    group.mainPID = mainPid;
    for (int i = 0; i <= helpers; ++i) {
        ProcRow row;
        row.pid = mainPid + i;
        row.uid = uid;
        group.processes.push_back(row);
    }
    return group;
}

// Processes that ignore SIGTERM: every signal is recorded, none ends them.
class StubbornActions final : public ProcessActions {
public:
    [[nodiscard]] Held hold(int32_t pid) override { return std::make_shared<const HeldProcess>(pid); }
    bool quit(const AppGroup&, const std::vector<Held>&, bool) override { return false; }
    bool signal(const HeldProcess& process, int32_t sig) override
    {
        sent.emplace_back(process.pid(), sig);
        return true;
    }
    [[nodiscard]] bool isAlive(const HeldProcess&) override { return true; }
    void reveal(const std::string&) override { }
    void copy(const std::string&) override { }
    std::vector<std::pair<int32_t, int32_t>> sent;
};

// The window's side of the flow: the sheet shown, the toasts, a clock of the test's own.
struct Screen {
    std::optional<ConfirmRequest> sheet;
    std::vector<std::string> toasts;
    int rescans = 0;
    double now = 0;
    std::multimap<double, std::function<void()>> timers;

    ActionFlow::Hooks hooks()
    {
        return {[this](ConfirmRequest request) { sheet = std::move(request); },
            [this](const Sentence& said, ActionFlow::Told) { toasts.push_back(said.english()); }, [this] { ++rescans; },
            [this](double seconds, std::function<void()> work) { timers.emplace(now + seconds, std::move(work)); }};
    }

    // The sheet's message as the window puts it together, in English.
    [[nodiscard]] std::string message() const
    {
        std::string said;
        for (const auto& sentence : sheet->message)
            said += (said.empty() ? "" : " ") + sentence.english();
        for (const auto& line : sheet->lines)
            said += "\n" + line.english();
        return said;
    }

    void confirm()
    {
        auto request = std::move(sheet);
        sheet.reset();
        request->confirm();
    }

    void advance(double seconds)
    {
        now += seconds;
        while (!timers.empty() && timers.begin()->first <= now) {
            auto work = std::move(timers.begin()->second);
            timers.erase(timers.begin());
            work();
        }
    }
};

} // namespace

TEST(ActionFlow, WhoMayBeQuit)
{
    EXPECT_TRUE(ActionFlow::canQuit(app("Firefox", AppKind::app, 3), me, vexelPid));
    EXPECT_FALSE(ActionFlow::canQuit(app("Linux services", AppKind::system, 5), me, vexelPid));
    EXPECT_FALSE(ActionFlow::canQuit(app("bash", AppKind::tool, 0), me, vexelPid));
    EXPECT_FALSE(ActionFlow::canQuit(app("Steam", AppKind::app, 2, 1001), me, vexelPid)); // another user's
    EXPECT_FALSE(ActionFlow::canQuit(app("Vexel", AppKind::app, 0, me, vexelPid), me, vexelPid));

    FakeActions fake;
    Screen screen;
    ActionFlow flow(fake, screen.hooks(), me, vexelPid);
    flow.requestQuit(app("Linux services", AppKind::system, 5), false);
    EXPECT_FALSE(screen.sheet);
    EXPECT_EQ(screen.toasts, std::vector<std::string>{"Linux services can't be quit from Vexel."});
    EXPECT_TRUE(fake.log.empty());
}

TEST(ActionFlow, QuitIsAskedThenDoneAndCancelChangesNothing)
{
    FakeActions fake;
    Screen screen;
    ActionFlow flow(fake, screen.hooks(), me, vexelPid);
    flow.requestQuit(app("Firefox", AppKind::app, 32), false);
    ASSERT_TRUE(screen.sheet);
    EXPECT_EQ(screen.sheet->title.english(), "Quit Firefox?");
    EXPECT_EQ(screen.message(),
        "Firefox will be asked to quit, just like choosing Quit from its menu. It may ask you to save first. Its 32 "
        "helper processes will end with it.");
    EXPECT_EQ(screen.sheet->button.english(), "Quit");
    EXPECT_FALSE(screen.sheet->destructive);
    screen.sheet.reset(); // Cancel
    EXPECT_TRUE(fake.log.empty());

    flow.requestQuit(app("Firefox", AppKind::app, 1), true);
    EXPECT_EQ(screen.sheet->title.english(), "Force quit Firefox?");
    EXPECT_EQ(screen.message(),
        "Firefox will stop immediately, without a chance to save. Unsaved work in it will be lost. Its 1 helper "
        "process will end with it.");
    EXPECT_EQ(screen.sheet->button.english(), "Force Quit");
    EXPECT_TRUE(screen.sheet->destructive);
    screen.confirm();
    EXPECT_EQ(fake.log, std::vector<std::string>{"forceQuit Firefox"});
    EXPECT_EQ(screen.toasts, std::vector<std::string>{"Force quit Firefox"});
}

TEST(ActionFlow, AnIgnoredStopIsOfferedTheForceNeverSentIt)
{
    StubbornActions stubborn;
    Screen screen;
    ActionFlow flow(stubborn, screen.hooks(), me, vexelPid);
    flow.requestStop(4242, "node", {Sentence{"Port %1 in %2", {{"3000"}, {"shop"}}}}, false);
    ASSERT_TRUE(screen.sheet);
    EXPECT_EQ(screen.sheet->title.english(), "Stop node?");
    EXPECT_EQ(screen.message(),
        "Sends SIGTERM to process 4242, asking it to shut down cleanly — like pressing Ctrl-C in its terminal.\n"
        "Port 3000 in shop");
    EXPECT_EQ(screen.sheet->button.english(), "Stop");
    screen.confirm();
    EXPECT_EQ(stubborn.sent, (std::vector<std::pair<int32_t, int32_t>>{{4242, SIGTERM}}));
    EXPECT_EQ(screen.toasts, std::vector<std::string>{"Asked node (process 4242) to stop."});
    EXPECT_EQ(screen.rescans, 1);
    screen.advance(3.9);
    EXPECT_FALSE(screen.sheet);
    screen.advance(0.1);
    ASSERT_TRUE(screen.sheet); // offered…
    EXPECT_EQ(screen.sheet->title.english(), "Force stop node?");
    EXPECT_EQ(screen.sheet->button.english(), "Force Stop");
    EXPECT_TRUE(screen.sheet->destructive);
    EXPECT_EQ(stubborn.sent.size(), 1u); // …not sent
    screen.confirm();
    EXPECT_EQ(stubborn.sent.back(), (std::pair<int32_t, int32_t>{4242, SIGKILL}));
    EXPECT_EQ(screen.toasts.back(), "Sent SIGKILL to node (process 4242).");
    screen.advance(10);
    EXPECT_FALSE(screen.sheet); // nothing offered after a forced stop
}

TEST(ActionFlow, AStopThatEndsTheProcessOffersNothingMoreAndAFailedOneSaysSo)
{
    FakeActions fake;
    fake.alive = {4242};
    Screen screen;
    ActionFlow flow(fake, screen.hooks(), me, vexelPid);
    flow.performStop(fake.hold(4242), "node", false);
    screen.advance(5);
    EXPECT_FALSE(screen.sheet);
    flow.performStop(fake.hold(4242), "node", false); // gone already
    EXPECT_EQ(screen.toasts.back(), "Couldn't signal node (process 4242). It may have already exited.");
    EXPECT_EQ(screen.rescans, 1);
}

TEST(LiveActions, SignalsAliveAndTheClipboard)
{
    vexel::testing::ChildProcess sleeper({"sleep", "30"});
    ASSERT_NE(sleeper.pid(), 0);
    LiveActions live;
    const auto held = live.hold(sleeper.pid());
    ASSERT_TRUE(held);
    EXPECT_TRUE(live.isAlive(*held));
    AppGroup group = app("sleep", AppKind::app, 0, static_cast<uint32_t>(::getuid()), sleeper.pid());
    EXPECT_TRUE(live.quit(group, {held}, false)); // SIGTERM to the main process
    const int status = sleeper.wait();
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGTERM) << status;
    EXPECT_FALSE(live.isAlive(*held));
    EXPECT_FALSE(live.signal(*held, SIGTERM));
    EXPECT_FALSE(live.hold(sleeper.pid())) << "ended and reaped: nothing to hold";
    const auto init = live.hold(1);
    ASSERT_TRUE(init);
    EXPECT_TRUE(live.isAlive(*init)); // not ours to signal, but there
    live.copy("vexel top --sort memory");
    EXPECT_EQ(QGuiApplication::clipboard()->text().toStdString(), "vexel top --sort memory");
}

// The sheet asking to force quit stays open while the app ends and its pid
// is given to a new process: confirming must not kill the new one. The pid
// is handed on for real, by setting the kernel's last pid (root only).
TEST(LiveActions, AnAnswerNeverReachesTheProcessThatTookTheNumber)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "needs root to set /proc/sys/kernel/ns_last_pid; CI runs as root";
    LiveActions live;
    Screen screen;
    ActionFlow flow(live, screen.hooks(), static_cast<uint32_t>(::getuid()), vexelPid);
    for (int attempt = 0; attempt < 20; ++attempt) {
        std::optional<vexel::testing::ChildProcess> first(std::in_place, std::vector<std::string>{"sleep", "30"});
        const pid_t pid = first->pid();
        flow.requestQuit(app("sleep", AppKind::app, 0, static_cast<uint32_t>(::getuid()), pid), true);
        ASSERT_TRUE(screen.sheet);
        first.reset(); // the app ends while the question is open
        std::ofstream("/proc/sys/kernel/ns_last_pid") << pid - 1;
        vexel::testing::ChildProcess second({"sleep", "30"});
        if (second.pid() != pid)
            continue; // another process took the number first: try again
        screen.confirm();
        EXPECT_EQ(screen.toasts.back(), "sleep didn't respond to Quit.");
        const auto stillThere = live.hold(second.pid());
        ASSERT_TRUE(stillThere);
        EXPECT_TRUE(live.isAlive(*stillThere)) << "the process that took the number was killed";
        return;
    }
    FAIL() << "no pid was handed on in 20 tries";
}

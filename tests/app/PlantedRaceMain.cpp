// A race planted on purpose, for the ThreadSanitizer run to find: the
// sampler's thread and the GUI thread write one number with nothing
// ordering them. The run fails if ThreadSanitizer, with Vexel's
// suppressions of Qt's and GLib's own threads, says nothing about it: those
// suppressions would then be hiding Vexel's races too.

#include "model/SamplerThread.h"
#include "synth/DemoWorld.h"

#include <QCoreApplication>
#include <QTimer>

#include <atomic>
#include <thread>

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    vexel::DemoWorld world;
    const vexel::VexelPaths paths(std::filesystem::temp_directory_path() / "vexel-planted-race");
    vexel::SamplerThread thread([&] { return std::make_unique<vexel::Sampler>(world.monitor(), nullptr, paths); });
    int shared = 0;
    std::atomic<bool> started{false};
    thread.post<int>(
        [&](vexel::Sampler&) {
            started = true;
            for (int i = 0; i < 1000; ++i)
                shared = i; // the race
            return 0;
        },
        [](int) { QCoreApplication::exit(0); });
    while (!started)
        std::this_thread::yield();
    for (int i = 0; i < 1000; ++i)
        shared = -i; // its other side
    return QCoreApplication::exec() + (shared > 1000 ? 1 : 0);
}

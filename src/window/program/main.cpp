#include "platform/AppFolder.h"
#include "platform/Native.h"
#include "screens/Messages.h"
#include "window/WindowProgram.h"

#if GATEWISE_HAS_OPENAL
#include "sound_openal/OpenAlDevice.h"
#else
#include "sound/SilentDevice.h"
#endif

#include <QApplication>

#include <iostream>
#include <memory>

namespace {

std::unique_ptr<gatewise::SoundDevice> soundDevice() {
#if GATEWISE_HAS_OPENAL
    return gatewise::makeOpenAlDevice();
#else
    return std::make_unique<gatewise::SilentDevice>();
#endif
}

} // namespace

int main(int count, char** arguments) {
    using namespace gatewise;
    QApplication application(count, arguments);

    std::error_code error;
    const std::string appDir = chooseAppDir(error);
    if (error) std::cerr << "gatewise: " << error.message() << '\n';

    window::WindowProgram* window = nullptr;
    const auto clock = native::systemClock();
    const auto locale = native::userLocale();
    const auto registry = native::systemRegistry();
    // Why a program did not start waits for its answer: after the simulator's start everything closes.
    const auto say = [&window](const std::string& text) {
        if (window != nullptr) ShowMsgBox(window->program, text);
    };
    const auto processes = native::systemProcesses(say);
    const auto random = native::systemRandom();
    const auto sound = soundDevice();
    window::WindowProgram program({*clock, *locale, *registry, *processes, *random, *sound}, appDir);
    window = &program;
    program.run(error ? "The program's folder for settings could not be made: " + error.message() : "");
    window = nullptr;
}

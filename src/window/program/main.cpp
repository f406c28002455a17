#include "pages/MsgBox.h"
#include "platform/AppFolder.h"
#include "platform/Native.h"
#include "platform/Text.h"
#include "window/OneInstance.h"
#include "window/QtText.h"
#include "window/WindowProgram.h"

#if GATEWISE_HAS_DIRECTSOUND
#include "sound_directsound/DirectSoundDevice.h"
#elif GATEWISE_HAS_OPENAL
#include "sound_openal/OpenAlDevice.h"
#else
#include "sound/SilentDevice.h"
#endif

#include <QApplication>

#include <cstdlib>
#include <iostream>
#include <memory>
#include <string_view>

namespace {

/// The main window as the system names it, for the sound; null before it is made.
[[maybe_unused]] void* nativeHandle(gatewise::window::WindowProgram* const& window) {
    return window != nullptr ? reinterpret_cast<void*>(window->desk.mainWindow().winId()) : nullptr;
}

std::unique_ptr<gatewise::SoundDevice>
soundDevice([[maybe_unused]] gatewise::window::WindowProgram*& window) {
#if GATEWISE_HAS_DIRECTSOUND
    return gatewise::makeDirectSoundDevice([&window] { return nativeHandle(window); });
#elif GATEWISE_HAS_OPENAL
    return gatewise::makeOpenAlDevice();
#else
    return std::make_unique<gatewise::SilentDevice>();
#endif
}

} // namespace

int main(int count, char** arguments) {
    using namespace gatewise;
    native::useCallersConsole();
    if (count == 2 && std::string_view(arguments[1]) == "--version") {
        std::cout << "Gatewise Terminal " GATEWISE_VERSION << std::endl;
        return EXIT_SUCCESS;
    }
    QApplication application(count, arguments);
    // The desktop finds the icon and the name of the window by its entry.
    QGuiApplication::setDesktopFileName("org.gatewise.terminal");

    std::error_code error;
    const AppFolders folders = chooseFolders(error);
    if (error) std::cerr << "gatewise: " << error.message() << '\n';
    useFolders(folders);
    window::OneInstance instance(window::nativePath(folders.AppDir));
    if (!instance.first()) {
        std::cerr << "gatewise: the program is running already; its window comes to the front\n";
        instance.callFirst();
        return EXIT_SUCCESS;
    }

    window::WindowProgram* window = nullptr;
    const auto clock = native::systemClock();
    const auto locale = native::userLocale();
    const auto registry = native::systemRegistry();
    // Why a program did not start waits for its answer: after the simulator's start everything closes.
    const auto say = [&window](const std::string& text) {
        if (window != nullptr) (void)ShowMsgBox(window->program, text); // nothing follows the wait
    };
    const auto processes = native::systemProcesses(say);
    const auto random = native::systemRandom();
    const auto sound = soundDevice(window);
    window::WindowProgram::Services services{*clock, *locale, *registry, *processes, *random, *sound};
    services.ownSize = true;
    window::WindowProgram program(services, folders.AppDir);
    window = &program;
    instance.onCall([&program] { program.toFront(); });
    program.run(
        error ? "The program's folder for settings could not be made: " + textFromUtf8(error.message()) : "");
    window = nullptr;
    return EXIT_SUCCESS;
}

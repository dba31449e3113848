#pragma once

#include <QByteArray>

/// The libraries for fonts keep what they once found to the end, which is no leak of ours.
extern "C" const char *__asan_default_options();
const char *__asan_default_options()
{
    return "detect_leaks=0";
}

/// Makes, before the first input, the application that fonts, images and widgets need: drawn off screen, without the
/// settings of the person who runs it. Once, and never taken down: libFuzzer ends the process itself.
template <typename Application>
void makeApplication()
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static int argc = 1;
    static char name[] = "fuzz";
    static char *argv[] = {name, nullptr};
    [[maybe_unused]] static const auto *application = new Application(argc, argv);
}

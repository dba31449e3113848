#pragma once

#include "fuzz/GuiApplication.h"
#include "host/kernel/documents/Session.h"

#include <QApplication>
#include <QTemporaryDir>

/// A running host with one new drawing and a home of its own, made once.
inline host::kernel::Session &hostSession()
{
    static const QTemporaryDir home;
    static auto *session = [] {
        qputenv("XDG_CONFIG_HOME", home.path().toUtf8());
        makeApplication<QApplication>();
        host::kernel::SessionOptions options;
        options.home = home.path();
        auto *made = new host::kernel::Session(options);
        made->documents().create();
        return made;
    }();
    return *session;
}

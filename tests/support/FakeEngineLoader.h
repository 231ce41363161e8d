// The scripted engine for tests of the player and of both faces. Link quorin_fake_engine_support.
//
// A face's test calls QPlayer::setLoaderFactory(fakeEngineLoader) before the first QPlayer::instance(); a
// program that runs as a process of its own gets QUORIN_ENGINE=<file>.
#pragma once

#include "fakeengine/FakeEngine.h"
#include "player/EngineLoader.h"

#include <QLibrary>
#include <QString>

#include <memory>

[[nodiscard]] inline QString fakeEngineFile()
{
    return QStringLiteral(QUORIN_FAKE_ENGINE);
}

[[nodiscard]] inline std::unique_ptr<IEngineLoader> fakeEngineLoader()
{
    return std::make_unique<LibraryEngineLoader>(fakeEngineFile());
}

// The remote control; keeps the library loaded until the process ends.
[[nodiscard]] inline FakeEngine &fakeEngine()
{
    static FakeEngine *const engine = [] {
        QLibrary library(fakeEngineFile());
        library.setLoadHints(QLibrary::PreventUnloadHint);
        const auto function = reinterpret_cast<FakeEngineFunction>(library.resolve(FakeEngineName));
        if (!function)
            qFatal("the scripted engine cannot be loaded: %s", qPrintable(library.errorString()));
        return function();
    }();
    return *engine;
}

#pragma once

#include <QObject>
#include <functional>

class QWidget;

namespace kalvane {

/// Runs a command handler; an exception becomes a message box over `parent` with the title `title`, and
/// the program lives on. Returns false when there was one.
bool Guarded(QWidget* parent, const std::function<void()>& handler, const QString& title = {});

/// Connects a signal to a handler that runs guarded. `screen` is both context and parent of the message.
template <typename Sender, typename Signal, typename Handler>
void OnSignal(Sender* sender, Signal signal, QWidget* screen, Handler handler) {
    QObject::connect(sender, signal, screen,
                     [screen, handler](auto&&...) { Guarded(screen, [&] { handler(); }); });
}

}  // namespace kalvane

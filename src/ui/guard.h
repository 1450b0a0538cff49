#pragma once

#include <QObject>
#include <functional>

class QWidget;

namespace kalvane {

/// Runs a command handler; an exception becomes a message box over `parent` with the title `title` (empty:
/// the program's), and the program lives on. Returns false when there was one. The handler may close and
/// delete `parent`.
bool Guarded(QWidget* parent, const std::function<void()>& handler, const QString& title = {});

/// Connects a signal to a handler that runs guarded. `screen` is both context and parent of the message.
/// The handler takes no arguments: it asks the widgets.
template <typename Sender, typename Signal, typename Handler>
void OnSignal(Sender* sender, Signal signal, QWidget* screen, Handler handler) {
    QObject::connect(sender, signal, screen, [screen, handler] { Guarded(screen, handler); });
}

}  // namespace kalvane

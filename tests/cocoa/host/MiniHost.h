#pragma once

#import <AppKit/AppKit.h>
#import <PreferencePanes/PreferencePanes.h>

#import "cocoa/support/Ref.h"

#include "protocol/MessageCenter.h"

#include <functional>
#include <string_view>
#include <vector>

@class ZVTestObserver;

namespace zarvil::cocoa::test {

/// Turns the run loop and hands on the user's events, as an application does, until the condition
/// holds; false when it does not within some seconds.
bool runUntil(const std::function<bool()>& condition, double seconds = 20);

/// A preferences host in this process: shows a pane's main view in a window and plays the user.
/// Knows the pane by its bundle alone.
class MiniHost {
public:
    /// Loads the pane and selects it, in the order of the system's host. Without a main view there
    /// is no window either.
    explicit MiniHost(NSPreferencePane* pane);
    MiniHost(const MiniHost&) = delete;
    MiniHost& operator=(const MiniHost&) = delete;
    /// Unselects the pane.
    ~MiniHost();

    [[nodiscard]] static Ref<NSPreferencePane> newPane(NSString* bundlePath);

    [[nodiscard]] NSWindow* window() const { return window_.get(); }
    /// What the layout has wired to an outlet; nil without one.
    template <typename Class = NSButton>
    [[nodiscard]] Class* outlet(std::string_view name) const {
        return static_cast<Class*>(wired(name));
    }

    /// Brings a view to the front: its tab, and what scrolls it.
    void show(NSView* view) const;
    /// Presses and releases the mouse in the middle of a view, of whatever window.
    void click(NSView* view) const;
    /// Replaces the text of a field and presses Return.
    void type(NSTextField* field, std::string_view text) const;

private:
    [[nodiscard]] id wired(std::string_view name) const;

    Ref<NSPreferencePane> pane_;
    Ref<NSWindow> window_;
};

/// The agent's end, with Foundation's own means: hears what the pane sends, answers its pings.
class PlayedAgent {
public:
    PlayedAgent();
    PlayedAgent(const PlayedAgent&) = delete;
    PlayedAgent& operator=(const PlayedAgent&) = delete;
    ~PlayedAgent();

    void send(const Message& message) const;
    /// Posts again and again until the condition holds: what is posted while the notification
    /// server starts anew is lost.
    bool sendUntil(const Message& message, const std::function<bool()>& condition) const;

    /// What the pane has sent, pings aside.
    std::vector<Message> heard;
    bool answersPings = true;

private:
    friend void hear(PlayedAgent& agent, NSNotification* notification);
    void listen();

    Ref<ZVTestObserver> observer_;
};

} // namespace zarvil::cocoa::test

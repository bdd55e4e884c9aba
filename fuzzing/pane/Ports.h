#pragma once

#include "Fakes.h"
#include "protocol/MessageCenter.h"
#include "protocol/ObserverList.h"

namespace zarvil::fuzz {

/// Counts the timers of each interval that are still to fire or repeat.
class CountedTimers final : public Timers {
public:
    explicit CountedTimers(Timers& timers) : timers_(timers) {}

    std::unique_ptr<Timer> schedule(double interval, Repetition repetition,
                                    std::function<void()> call) override {
        return std::make_unique<Counted>(timers_.schedule(interval, repetition, std::move(call)),
                                         ++pending[interval]);
    }

    std::map<double, int> pending;

private:
    struct Counted final : Timer {
        Counted(std::unique_ptr<Timer> timer, int& total)
            : counted(std::move(timer)), count(total) {}
        ~Counted() override { --count; }
        std::unique_ptr<Timer> counted;
        int& count;
    };

    Timers& timers_;
};

/// Keeps what the pane posts, and calls back in the midst of posting.
class Bus final : public MessageCenter {
public:
    void post(Message message) override {
        sent.push_back(std::move(message));
        if (whilePosting)
            whilePosting();
    }
    Subscription addObserver(std::string_view name, Handler handler) override {
        return observers_[std::string(name)].add(std::move(handler));
    }
    Subscription observeLink(const LinkObserver& observer) override {
        observer(LinkEvent::Up);
        return links_.add(observer);
    }

    /// At once, even within a handler, as no real center does.
    void deliver(const Message& message) { observers_[message.name].notify(message); }
    void announce(LinkEvent event) { links_.notify(event); }

    std::vector<Message> sent;
    std::function<void()> whilePosting;

private:
    std::map<std::string, ObserverList<const Message&>, std::less<>> observers_;
    ObserverList<LinkEvent> links_;
};

struct Ports {
    HandlerQueue handlers;
    Bus bus;
    fake::VirtualTime time;
    CountedTimers timers{time};
    fake::Workspace workspace;
    fake::FileManager files;
    fake::UserDefaults defaults;
    fake::ErrorPresenter errors;
    fake::ScriptRunner scripts;
    fake::Authorization authorization;
    fake::StringTable strings;
    fake::ModalLoop modal;
    fake::ProcessControl processes;
    Platform platform{handlers, bus,     timers,        time,    workspace, files, defaults,
                      errors,   scripts, authorization, strings, {},        modal, processes,
                      "",       "."};
};

} // namespace zarvil::fuzz

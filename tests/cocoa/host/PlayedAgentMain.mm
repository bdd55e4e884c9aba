#import "MiniHost.h"

#import "cocoa/support/Pool.h"
#import "cocoa/support/PropertyLists.h"

#include "ControlCases.h"

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <string>

#include <poll.h>
#include <unistd.h>

namespace {

using namespace zarvil;

/// `NAME`, or `NAME {...}` with the user info as JSON.
Message parsed(const std::string& line) {
    const std::size_t nameEnd = std::min(line.find(' '), line.size());
    Message message(line.substr(0, nameEnd));
    NSData* info = [NSData dataWithBytes:line.data() + nameEnd length:line.size() - nameEnd];
    if ([info length] > 0)
        message.userInfo = cocoa::toDictionary([NSJSONSerialization JSONObjectWithData:info
                                                                               options:0
                                                                                 error:NULL]);
    return message;
}

/// The tables of cases as JSON, for a test that is written in another language.
void printCases() {
    Array controls;
    for (const ControlCase& c : controlCases)
        controls.emplace_back(Array{c.outlet, c.typed, c.sent});
    Array settings;
    for (const SettingCase& c : settingCases())
        settings.emplace_back(Array{c.key, c.value, c.outlet, c.shown});
    Array before;
    for (const Message& message : messagesBeforeACase())
        before.emplace_back(Array{message.name, message.info()});
    const Dictionary all{{"controls", controls}, {"settings", settings}, {"before", before}};
    NSData* text = [NSJSONSerialization dataWithJSONObject:cocoa::toPropertyList(all)
                                                   options:0
                                                     error:NULL];
    std::cout.write(static_cast<const char*>([text bytes]),
                    static_cast<std::streamsize>([text length]));
}

bool inputWaits() {
    pollfd input{STDIN_FILENO, POLLIN, 0};
    return std::cin.rdbuf()->in_avail() > 0 || ::poll(&input, 1, 0) != 0;
}

} // namespace

/// The agent's end in a process of its own, for a host that is none of ours: answers pings, prints
/// what it hears, and posts each line of its input. With an argument it prints the tables alone.
int main(int count, char**) {
    const cocoa::Pool pool;
    std::ios::sync_with_stdio(false);
    if (count > 1) {
        printCases();
        std::cout.flush();
        // GNUstep leaves its objects to the end, which a sanitizer takes for leaks.
        std::_Exit(EXIT_SUCCESS);
    }
    [NSApplication sharedApplication];
    cocoa::test::PlayedAgent agent;
    std::cout << "ready" << std::endl;
    for (;;) {
        (void)cocoa::test::runUntil([&agent] { return !agent.heard.empty() || inputWaits(); });
        for (const Message& message : std::exchange(agent.heard, {}))
            std::cout << described(message) << std::endl;
        std::string line;
        if (!inputWaits())
            continue;
        if (!std::getline(std::cin, line))
            return EXIT_SUCCESS;
        agent.send(parsed(line));
    }
}

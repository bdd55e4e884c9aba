#import "MiniHost.h"

#import "cocoa/support/Pool.h"

#include "ControlCases.h"

#include <charconv>
#include <iostream>
#include <sstream>
#include <string>

#include <poll.h>
#include <unistd.h>

namespace {

using zarvil::Message;

/// `NAME key=value...`; what looks like a number is one.
Message parsed(const std::string& line) {
    std::istringstream words(line);
    std::string word;
    words >> word;
    Message message(word);
    while (words >> word) {
        const auto equals = word.find('=');
        const std::string value = word.substr(equals + 1);
        std::int64_t number = 0;
        const auto [end, error] =
            std::from_chars(value.data(), value.data() + value.size(), number);
        if (!message.userInfo)
            message.userInfo.emplace();
        const bool isNumber = error == std::errc() && end == value.data() + value.size();
        message.userInfo->setObject(word.substr(0, equals),
                                    isNumber ? zarvil::Value(number) : zarvil::Value(value));
    }
    return message;
}

bool inputWaits() {
    pollfd input{STDIN_FILENO, POLLIN, 0};
    return std::cin.rdbuf()->in_avail() > 0 || ::poll(&input, 1, 0) != 0;
}

} // namespace

/// The agent's end in a process of its own, for a host that is none of ours: answers pings, prints
/// what it hears, and posts each line of its input.
int main() {
    const zarvil::cocoa::Pool pool;
    std::ios::sync_with_stdio(false);
    [NSApplication sharedApplication];
    zarvil::cocoa::test::PlayedAgent agent;
    std::cout << "ready" << std::endl;
    for (;;) {
        (void)zarvil::cocoa::test::runUntil(
            [&agent] { return !agent.heard.empty() || inputWaits(); });
        for (const Message& message : std::exchange(agent.heard, {}))
            std::cout << zarvil::described(message) << std::endl;
        std::string line;
        if (!inputWaits())
            continue;
        if (!std::getline(std::cin, line))
            return EXIT_SUCCESS;
        agent.send(parsed(line));
    }
}

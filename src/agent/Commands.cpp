#include "agent/Commands.h"

#include "agent/Agent.h"
#include "agent/DeviceRecord.h"

#include <QStringList>

#include <algorithm>
#include <array>
#include <limits>

namespace zarvil::agent {

namespace {

const auto done = QStringLiteral("ok");

struct Command {
    const char* name;
    const char* argument;
    const char* help;
    QString (*run)(Agent& agent, const QString& argument);
};

std::optional<Dictionary> deviceFrom(const QString& argument) {
    constexpr qsizetype partCount = 3;
    const QStringList parts = argument.split('|');
    if (parts.size() != partCount || parts[0].isEmpty())
        return std::nullopt;
    return deviceRecord(parts[0].toStdString(), parts[1].toStdString(), parts[2].toStdString());
}

QString onDevice(const QString& argument, const char* refusal,
                 const std::function<bool(const Dictionary&)>& action) {
    const std::optional<Dictionary> device = deviceFrom(argument);
    if (!device)
        return QStringLiteral("give the device as NAME|VENDOR|SERIAL");
    return action(*device) ? done : QString::fromUtf8(refusal);
}

QString onSwitch(const QString& argument, const std::function<void(bool)>& action) {
    if (argument != "on" && argument != "off")
        return QStringLiteral("say on or off");
    action(argument == "on");
    return done;
}

QString plug(Agent& agent, const QString& argument) {
    return onDevice(argument, "", [&](const Dictionary& device) {
        agent.deviceAppeared(device);
        return true;
    });
}

QString unplug(Agent& agent, const QString& argument) {
    return onDevice(argument, "no such device is connected",
                    [&](const Dictionary& device) { return agent.deviceWent(device); });
}

QString save(Agent& agent, const QString& argument) {
    return onDevice(argument, "that device is saved already",
                    [&](const Dictionary& device) { return agent.saveByItself(device); });
}

QString state(Agent& agent, const QString& argument) {
    return onSwitch(argument, [&](bool on) { agent.setProtecting(on); });
}

QString mute(Agent& agent, const QString& argument) {
    return onSwitch(argument, [&](bool on) { agent.setMuted(on); });
}

QString push(Agent& agent, const QString& argument) {
    bool isNumber = false;
    const qlonglong code = argument.toLongLong(&isNumber);
    if (!isNumber && argument != "auto")
        return QStringLiteral("give a whole number, or auto");
    agent.setVerdict(isNumber ? std::optional(std::int64_t{code}) : std::nullopt);
    return done;
}

QString late(Agent& agent, const QString& argument) {
    bool isNumber = false;
    const int delay = argument.toInt(&isNumber);
    if (!isNumber || delay < 0)
        return QStringLiteral("give the delay in milliseconds");
    agent.setLateness(std::chrono::milliseconds(delay));
    return done;
}

QString quitPrefs(Agent& agent, const QString& /*argument*/) {
    agent.endHost();
    return done;
}

QString quit(Agent& agent, const QString& /*argument*/) {
    agent.quit();
    return done;
}

QString help(Agent& /*agent*/, const QString& /*argument*/) { return commandHelp(); }

constexpr const char* device = "NAME|VENDOR|SERIAL";

constexpr std::array commands{
    Command{"plug", device, "connect a device; without a serial it is N/A", plug},
    Command{"unplug", device, "disconnect it", unplug},
    Command{"save", device, "save a device without being asked", save},
    Command{"state", "on|off", "switch protection and report it", state},
    Command{"push", "CODE|auto", "the verdict of Pushover checks; auto judges by form", push},
    Command{"late", "MS", "delay everything that is sent", late},
    Command{"mute", "on|off", "leave pings unanswered", mute},
    Command{"quitprefs", "", "end the preferences application", quitPrefs},
    Command{"quit", "", "end the agent", quit},
    Command{"help", "", "list the commands", help},
};

} // namespace

QString runCommand(Agent& agent, const QString& line) {
    const QString trimmed = line.trimmed();
    if (trimmed.isEmpty())
        return {};
    const QString name = trimmed.section(' ', 0, 0);
    const QString argument = trimmed.mid(name.size()).trimmed();
    const auto* found = std::ranges::find_if(
        commands, [&](const Command& command) { return name == QLatin1String(command.name); });
    if (found == commands.end())
        return "unknown command \"" + name + "\"; help lists the commands";
    if (*found->argument == '\0' && !argument.isEmpty())
        return name + " takes no argument";
    return found->run(agent, argument);
}

QString commandHelp() {
    constexpr int column = 28;
    QStringList lines;
    for (const Command& command : commands)
        lines
            << QStringLiteral("  %1 %2").arg(command.name, command.argument).leftJustified(column) +
                   QString::fromLatin1(command.help);
    return lines.join('\n');
}

} // namespace zarvil::agent

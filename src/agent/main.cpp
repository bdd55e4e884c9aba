#include "agent/BusPresence.h"
#include "agent/CommandLine.h"

#include <QCoreApplication>

int main(int argc, char** argv) {
    using namespace zarvil::agent;
    const QCoreApplication application(argc, argv);
    const ApplicationOptions options = readCommandLine(application);
    zarvil::BusConnection session{zarvil::BusOptions::sessionBus()};
    zarvil::DBusMessageCenter messages{session};
    AgentApplication agent(options, messages, [](int code) { QCoreApplication::exit(code); });
    const BusPresence presence(session, agent);
    return QCoreApplication::exec();
}

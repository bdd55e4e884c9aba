"""What the fault runs share: each fault is a function that returns what it counted, as one line."""

import contextlib
import os
import pathlib
import subprocess
import sys
import time
import xml.etree.ElementTree

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "tests/system"))
import desktop  # noqa: E402
from desktop import AGENT_NAME, BUILD, HOST_NAME, PATH, Pane, Session, wait_until  # noqa: E402
from gi.repository import Gio, GLib  # noqa: E402

desktop.Atspi.set_timeout(20_000, 20_000)
TOP = pathlib.Path(__file__).resolve().parent.parent
BOXES = {"Launch Zarvil at login": "LaunchAtLogin", "Quit applications by force": "UseForce",
         "Notify me when the power fails": "ShowFailNotifi",
         "Tell me when a device is connected": "NewDeviceMessage"}


def times(count):
    """How often a fault is made; a trial of the run itself makes fewer."""
    return max(1, count // int(os.environ.get("FAULTS_PART", "1")))


def messages(direction):
    """The names of the protocol's messages that go one way."""
    interface = xml.etree.ElementTree.parse(TOP / "docs/com.Tessrow.Zarvil.xml").find("interface")
    return [signal.get("name") for signal in interface.iter("signal")
            if signal.find("annotation[@name='com.Tessrow.Zarvil.Direction']").get("value") == direction]


def kilobytes(pid, label="RssAnon:"):
    status = pathlib.Path(f"/proc/{pid}/status").read_text()
    return int(status.split(label)[1].split()[0])


class Run:
    """A session with a host, and what the pane posts."""

    def __init__(self):
        self.session = Session()
        self.posted = []
        self.listen()

    def listen(self):
        self.session.bus.signal_subscribe(None, AGENT_NAME, None, PATH, None, 0,
                                          lambda *call: self.posted.append((call[1], call[4], call[5])))

    def __enter__(self):
        return self

    def __exit__(self, kind, *_):
        if kind:
            picture = BUILD / f"fault-{sys.argv[1]}.png"
            subprocess.run(["import", "-silent", "-window", "root", picture], check=False)
        self.session.close()

    def start_host(self, wrapper=()):
        self.host = self.session.start_host(wrapper=wrapper)
        self.pane = Pane(self.session, self.host.pid)
        self.nodes = {}
        return self.pane

    def wait_for_agent(self):
        wait_until(lambda: self.pane.showing("Zarvil is running"), "the pane knows the agent")

    def alive(self):
        assert self.host.poll() is None, f"the host ended with {self.host.returncode}"

    def from_host(self, name):
        """The payloads of the host's messages of one name."""
        owner = self.session.bus.call_sync(
            "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "GetNameOwner",
            GLib.Variant("(s)", (HOST_NAME,)), None, 0, 2000, None).unpack()[0]
        return [payload.unpack()[0] for sender, member, payload in self.posted
                if sender == owner and member == name]

    def node(self, name, role=None):
        """A control that is looked for once, since it stays what it is."""
        if (name, role) not in self.nodes:
            self.nodes[name, role] = self.pane.get(name, role)
        return self.nodes[name, role]

    def click(self, name, role=None):
        with contextlib.suppress(GLib.Error):
            return self.node(name, role).get_action_iface().do_action(0)
        return False

    def checked(self, name):
        node = self.node(name, "check box")
        node.clear_cache()
        return node.get_state_set().contains(desktop.Atspi.StateType.CHECKED)


class PlayedAgent:
    """Owns the agent's name on a connection of its own, answers pings, and says what it is told."""

    def __init__(self):
        self.bus = connection()
        self.bus.call_sync("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                           "RequestName", GLib.Variant("(su)", (AGENT_NAME, 4)), None, 0, 2000, None)
        for name, answers in (("ZVPing", ("ZVPingTest",)), ("ZVPrefsLoaded", ("ZVSavedPrefs",))):
            self.bus.signal_subscribe(HOST_NAME, AGENT_NAME, name, PATH, None, 0,
                                      lambda *_, answers=answers: [self.say(one) for one in answers])

    def say(self, message, **info):
        self.bus.emit_signal(None, PATH, AGENT_NAME, message, GLib.Variant("(a{sv})", (info,)))


def connection(address=None):
    flags = Gio.DBusConnectionFlags
    bus = Gio.DBusConnection.new_for_address_sync(
        address or os.environ["DBUS_SESSION_BUS_ADDRESS"],
        flags.AUTHENTICATION_CLIENT | flags.MESSAGE_BUS_CONNECTION, None, None)
    bus.set_exit_on_close(False)
    return bus


def turn(seconds):
    """Lets a moment pass that is part of the fault, with the main loop turning."""
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        desktop.turn_main_loop()


def main(faults):
    """Runs the fault that is named on the command line."""
    name = sys.argv[1]
    begin = time.monotonic()
    try:
        counts = faults[name]()
    except (AssertionError, GLib.Error, subprocess.SubprocessError) as error:
        print(f"{name:16} FAILED  {error}", flush=True)
        raise SystemExit(1) from error
    print(f"{name:16} ok      {counts} ({time.monotonic() - begin:.0f} s)", flush=True)

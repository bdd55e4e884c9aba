"""Plays an agent whose settings change 100,000 times; see the script `settings`."""

import os
import subprocess
import sys
import time

from gi.repository import Gio, GLib

CHANGES = 100_000
SWITCHES = ("LaunchAtLogin ShowStatusIcon StatusIconMono UseForce ShutdownMessage "
            "HideShutdownMessage ShowFailNotifi SUEnableAutomaticChecks Testing UseEmailNotifi "
            "UsePushover").split()
TEXTS = "EmailAddress PushUserId PushDeviceId".split()
PATH, INTERFACE = "/com/Tessrow/Zarvil", "com.Tessrow.Zarvil"


def settings(odd):
    """Every setting, each unlike its value in the other set."""
    values = {key: GLib.Variant("b", odd) for key in SWITCHES}
    values |= {key: GLib.Variant("s", f"{key.lower()}{odd:d}@example.org") for key in TEXTS}
    values["ShutdownDelay"] = GLib.Variant("x", 60 + odd)
    return values


def busy(pid):
    """Processor seconds of all threads so far."""
    fields = open(f"/proc/{pid}/stat").read().rpartition(")")[2].split()
    return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")


def answer_pings():
    while GLib.MainContext.default().iteration(False):
        pass


def quiet(pid, seconds=1):
    """Waits until the program has not worked for so long; its processor time until then."""
    last, since = busy(pid), time.monotonic()
    while time.monotonic() - since < seconds:
        time.sleep(0.05)
        answer_pings()
        if busy(pid) != last:
            last, since = busy(pid), time.monotonic()
    return last


bus = Gio.bus_get_sync(Gio.BusType.SESSION)


def send(message, values):
    bus.emit_signal(None, PATH, INTERFACE, message,
                    GLib.Variant.new_tuple(GLib.Variant("a{sv}", values)))


bus.call_sync("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "RequestName",
              GLib.Variant("(su)", (INTERFACE, 0)), None, Gio.DBusCallFlags.NONE, -1)
bus.signal_subscribe(None, INTERFACE, "ZVPing", PATH, None, Gio.DBusSignalFlags.NONE,
                     lambda *_: send("ZVPingTest", {}))
host = subprocess.Popen(sys.argv[1:])
try:
    quiet(host.pid)
    before = quiet(host.pid)
    sets = [settings(False), settings(True)]
    messages = CHANGES // len(sets[0])
    for number in range(messages):
        send("ZVSavedPrefs", sets[number % 2])
        answer_pings()
    bus.flush_sync()
    used = quiet(host.pid) - before
    if host.poll() is not None:
        sys.exit("the preferences ended meanwhile")
    print(f"{messages} messages of {len(sets[0])} settings that all change: {used:.2f} s of processor "
          f"time, {used / messages * 1e6:.0f} us a message, "
          f"{used / (messages * len(sets[0])) * 1e6:.1f} us a setting (allowed 20)")
finally:
    host.terminate()
    host.wait()

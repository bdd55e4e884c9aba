"""Starts settings programs by turns and prints what each costs and what it tells an assistive
program. To be run on a display and a bus of its own, with the agent of the pane on it."""
import argparse
import ctypes
import os
import pathlib
import statistics
import subprocess
import tempfile
import time

BIN = pathlib.Path(os.environ["ZARVIL_BUILD"]) / "bin"
PROGRAMS = {
    "this pane": [BIN / "zarvil-preferences", BIN / "Zarvil Preferences.prefPane"],
    "bare Qt window": [BIN / "zarvil-bare-window"],
    "xfce4-power-manager": ["xfce4-power-manager-settings"],
    "mate-power-manager": ["mate-power-preferences"],
    "lxqt-powermanagement": ["lxqt-config-powermanagement"],
    "gnome-power-manager": ["gnome-power-statistics"],
}
# What a program needs that is running on its own desktop, and the bus and the name that tell that it is.
HELPERS = [(["/usr/libexec/upowerd"], "--system", "org.freedesktop.UPower"),
           (["/usr/bin/python3", "-m", "dbusmock", "--system", "--template", "logind"], "--system",
            "org.freedesktop.login1"),
           (["xfce4-power-manager", "--no-daemon"], "--session", "org.xfce.PowerManager")]
START_LIMIT, SILENCE, SETTLED, IDLE = 10, 0.5, 1.0, 5.0  # seconds
STILL = 1e6  # nanoseconds of CPU time in a look that count as rest
SYSTEM_BUS = """<busconfig><type>system</type><listen>unix:path=%s</listen><auth>EXTERNAL</auth>
  <policy context="default"><allow user="*"/><allow own="*"/><allow send_destination="*" eavesdrop="true"/>
  <allow eavesdrop="true"/></policy></busconfig>"""


class MapEvent(ctypes.Structure):
    _fields_ = [("type", ctypes.c_int), ("serial", ctypes.c_ulong), ("send_event", ctypes.c_int),
                ("display", ctypes.c_void_p), ("event", ctypes.c_ulong), ("window", ctypes.c_ulong),
                ("override_redirect", ctypes.c_int), ("rest", ctypes.c_long * 24)]


class Display:
    """Sees windows of a size to be looked at when they are mapped."""

    def __init__(self):
        self.x = ctypes.CDLL("libX11.so.6")
        self.x.XOpenDisplay.restype = ctypes.c_void_p
        self.x.XDefaultRootWindow.restype = ctypes.c_ulong
        self.display = ctypes.c_void_p(self.x.XOpenDisplay(None))
        # A window may be gone when it is asked about.
        self.handler = ctypes.CFUNCTYPE(ctypes.c_int, ctypes.c_void_p, ctypes.c_void_p)(lambda *_: 0)
        self.x.XSetErrorHandler(self.handler)
        root = ctypes.c_ulong(self.x.XDefaultRootWindow(self.display))
        self.x.XSelectInput(self.display, root, ctypes.c_long(1 << 19))
        self.x.XSync(self.display, 0)

    def mapped(self):
        event, found = MapEvent(), False
        while self.x.XPending(self.display):
            self.x.XNextEvent(self.display, ctypes.byref(event))
            found = found or (event.type == 19 and self.width(event.window) > 100)
        return found

    def width(self, window):
        root, place = ctypes.c_ulong(), [ctypes.c_int() for _ in range(2)]
        size = [ctypes.c_uint() for _ in range(4)]
        if not self.x.XGetGeometry(self.display, ctypes.c_ulong(window), ctypes.byref(root),
                                   *map(ctypes.byref, place + size)):
            return 0
        return size[0].value


def threads(pid, name):
    for task in pathlib.Path(f"/proc/{pid}/task").iterdir():
        try:
            yield (task / name).read_text()
        except OSError:
            pass


def cpu(pid):
    """Nanoseconds of CPU time."""
    return sum(int(text.split()[0]) for text in threads(pid, "schedstat"))


def wakeups(pid):
    return sum(int(line.split()[1]) for text in threads(pid, "status") for line in text.splitlines()
               if line.startswith("voluntary_ctxt_switches"))


def kilobytes(pid):
    lines = pathlib.Path(f"/proc/{pid}/smaps_rollup").read_text().splitlines()
    return {line.split(":")[0]: int(line.split()[1]) for line in lines[1:]}


def measure(display, command, idle):
    """One start: milliseconds to the window and to rest, CPU time, memory, wake-ups a second."""
    display.mapped()
    begin = time.monotonic()
    process = subprocess.Popen([str(word) for word in command], stdout=subprocess.DEVNULL,
                               stderr=subprocess.DEVNULL)
    try:
        while not display.mapped():
            if process.poll() is not None or time.monotonic() > begin + START_LIMIT:
                return None
            time.sleep(0.001)
        window = last = time.monotonic()
        used = cpu(process.pid)
        while time.monotonic() < last + SILENCE:
            time.sleep(0.02)
            now = cpu(process.pid)
            if now - used > STILL:
                last = time.monotonic()
            used = now
        figures = {"first window, ms": 1000 * (window - begin), "quiet, ms": 1000 * (last - begin),
                   "CPU, ms": used / 1e6}
        time.sleep(SETTLED)
        memory = kilobytes(process.pid)
        figures.update({"RSS, MiB": memory["Rss"] / 1024, "PSS, MiB": memory["Pss"] / 1024})
        if idle:
            before = wakeups(process.pid)
            time.sleep(IDLE)
            figures["wake-ups a second"] = (wakeups(process.pid) - before) / IDLE
        return figures
    finally:
        process.terminate()
        try:
            process.wait(5)
        except subprocess.TimeoutExpired:
            process.kill()
            process.wait()


def speed(rounds):
    display = Display()
    collected = {name: [] for name in PROGRAMS}
    for name, command in PROGRAMS.items():  # warms the caches
        if not measure(display, command, False):
            print(f"{name} shows no window here\n")
            del collected[name]
    for number in range(rounds):
        for name in collected:
            collected[name].append(measure(display, PROGRAMS[name], number == rounds - 1))
    keys = list(next(iter(collected.values()))[-1])
    table(keys, {name: [statistics.median(figures[key] for figures in all_figures if key in figures)
                        for key in keys] for name, all_figures in collected.items()}, ".1f")
    print(f"\nMedians of {rounds} starts by turns with warm caches; wake-ups over {IDLE:.0f} s.")


def table(keys, rows, form):
    print("| | " + " | ".join(keys) + " |")
    print("| --- |" + " ---: |" * len(keys))
    for name, values in rows.items():
        print(f"| {name} | " + " | ".join(f"{value:{form}}" for value in values) + " |")


CONTROLS = {"push button", "check box", "radio button", "toggle button", "combo box", "text", "spin button",
            "slider", "link", "page tab", "password text", "list", "table"}
WHOLE = {"combo box", "spin button", "slider", "text", "list", "table"}  # what is inside is a part of it


def controls(atspi, node):
    for index in range(node.get_child_count()):
        child = node.get_child_at_index(index)
        if not child:
            continue
        role = child.get_role_name()
        if role in CONTROLS and (role != "text" or child.get_state_set().contains(atspi.StateType.EDITABLE)):
            yield child
        if role not in WHOLE:
            yield from controls(atspi, child)


def told(atspi, node):
    """Whether it has a name, of its own or of its label, a description and a key."""
    labels = [relation.get_target(0) for relation in node.get_relation_set()
              if relation.get_relation_type() == atspi.RelationType.LABELLED_BY]
    keys = [one.get_action_iface().get_key_binding(0) for one in (node, *labels)
            if one.get_action_iface() and one.get_action_iface().get_n_actions()]
    keys += [one.get_name() for one in labels if "&" in (one.get_name() or "")]
    return (bool(node.get_name()) or any(label.get_name() for label in labels), bool(node.get_description()),
            any(keys))


def names():
    import gi
    gi.require_version("Atspi", "2.0")
    from gi.repository import Atspi
    rows = {}
    display = Display()
    for name, command in PROGRAMS.items():
        display.mapped()
        process = subprocess.Popen([str(word) for word in command], stdout=subprocess.DEVNULL,
                                   stderr=subprocess.DEVNULL,
                                   env=dict(os.environ, QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1"))
        end = time.monotonic() + START_LIMIT
        found = []
        while not display.mapped() and time.monotonic() < end:
            time.sleep(0.01)
        while time.monotonic() < end and not found:
            time.sleep(1.5)
            desktop = Atspi.get_desktop(0)
            applications = [desktop.get_child_at_index(index) for index in range(desktop.get_child_count())]
            found = [told(Atspi, node) for application in applications
                     if application and application.get_process_id() == process.pid
                     for node in controls(Atspi, application)]
        if found:
            rows[name] = [len(found), *(sum(column) for column in zip(*found))]
        process.kill()
        process.wait()
    table(["controls", "with a name", "with a description", "with a key"], rows, "d")


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--rounds", type=int, default=5)
    parser.add_argument("what", nargs="*", default=["speed", "names"])
    arguments = parser.parse_args()
    with tempfile.TemporaryDirectory() as folder:
        bus = pathlib.Path(folder, "bus")
        pathlib.Path(folder, "bus.conf").write_text(SYSTEM_BUS % bus)
        os.environ["DBUS_SYSTEM_BUS_ADDRESS"] = f"unix:path={bus}"
        helpers = [subprocess.Popen(["dbus-daemon", "--nofork", "--print-address", f"--config-file={folder}/bus.conf"],
                                    stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)]
        helpers[0].stdout.readline()
        try:
            for command, where, name in HELPERS:
                helpers.append(subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL))
                subprocess.run(["gdbus", "wait", where, "--timeout", str(START_LIMIT), name], check=True)
            for what in arguments.what:
                speed(arguments.rounds) if what == "speed" else names()
                print()
        finally:
            for helper in reversed(helpers):
                helper.kill()
                helper.wait()


if __name__ == "__main__":
    main()

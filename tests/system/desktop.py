"""A desktop session of its own for whole-system tests: display, window manager, bus, agent and
preferences application, all real. The pane is operated and read through the accessibility bus, as
an assistive program would. Whatever a session started it ends, by process identifier."""

import contextlib
import json
import os
import pathlib
import shutil
import signal
import subprocess
import tempfile
import time
import unittest

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, Gio, GLib  # noqa: E402

AGENT_NAME = "com.Tessrow.Zarvil"
HOST_NAME = "com.Tessrow.Preferences"
PATH = "/com/Tessrow/Zarvil"
BUILD = pathlib.Path(os.environ["ZARVIL_BUILD"])
BUNDLE = BUILD / "bin/Zarvil Preferences.prefPane"
PATIENCE = 60  # seconds, for a loaded machine under sanitizers


def turn_main_loop():
    """Handles what has arrived and waits a moment for more."""
    context = GLib.MainContext.default()
    GLib.timeout_add(20, lambda: False)
    context.iteration(True)


def wait_until(condition, what, patience=PATIENCE):
    deadline = time.monotonic() + patience
    while time.monotonic() < deadline:
        with contextlib.suppress(GLib.Error):
            result = condition()
            if result:
                return result
        turn_main_loop()
    raise AssertionError(f"waited {patience} s in vain: {what}")


class Session:
    """Folders and processes of one test."""

    def __init__(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="zarvil-system-"))
        self.home = self.folder / "home"
        self.root = self.folder / "root"
        self.home.mkdir()
        self.processes = []
        os.environ.update(HOME=str(self.home), XDG_CONFIG_HOME=str(self.home / ".config"),
                          XDG_CACHE_HOME=str(self.home / ".cache"),
                          XDG_DATA_HOME=str(self.home / ".local/share"),
                          LANGUAGE="en", LC_ALL="C.UTF-8")
        self.install_agent()
        # Without a window manager no window has the keyboard, and one that is mapped while the
        # manager starts is managed by nobody.
        self.start("openbox", stderr=subprocess.DEVNULL)
        wait_until(self.windows_are_managed, "the window manager is up")
        self.bus = Gio.bus_get_sync(Gio.BusType.SESSION)

    @staticmethod
    def windows_are_managed():
        check = subprocess.run(["xprop", "-root", "_NET_SUPPORTING_WM_CHECK"], text=True,
                               capture_output=True, check=True)
        return "window id" in check.stdout

    def close(self):
        for process in reversed(self.processes):
            if process.poll() is None:
                process.kill()
            process.wait()
            for pipe in (process.stdin, process.stdout):
                if pipe:
                    pipe.close()
        self.kill_owner(AGENT_NAME)
        shutil.rmtree(self.folder, ignore_errors=True)

    def install_agent(self):
        subprocess.run([BUILD / "../../tools/trial-root", self.root, BUILD], check=True)

    def install_pane(self, folder=None):
        """Copies the pane's bundle, by default to where the user's own panes are looked for."""
        bundle = (folder or self.home / "Library/PreferencePanes") / BUNDLE.name
        shutil.copytree(BUNDLE, bundle)
        return bundle

    def install_opener(self):
        """Puts a program first in the path that records what it is to open, and opens nothing."""
        record = self.folder / "opened"
        record.touch()
        opener = self.folder / "bin/xdg-open"
        opener.parent.mkdir()
        opener.write_text(f"#!/bin/sh\nprintf '%s\\n' \"$*\" >>'{record}'\n")
        opener.chmod(0o755)
        os.environ["PATH"] = f"{opener.parent}:{os.environ['PATH']}"
        return record

    def start(self, *command, **options):
        process = subprocess.Popen([str(word) for word in command], text=True, **options)
        self.processes.append(process)
        return process

    # The agent.

    def start_agent(self, *options):
        devices = self.folder / "devices.json"
        if not devices.exists():
            self.set_devices()
        agent = self.start(BUILD / "bin/zarvil-agent", "--root", self.root, "--devices", devices,
                           *options, stdin=subprocess.PIPE, stdout=subprocess.PIPE)
        wait_until(lambda: self.owner(AGENT_NAME), "the agent owns its name")
        return agent

    def set_devices(self, *texts):
        """What is connected when an agent starts, each as NAME|VENDOR|SERIAL."""
        keys = ("DeviceName", "DeviceVendor", "DeviceSerial")
        records = [dict(zip(keys, text.split("|"))) for text in texts]
        (self.folder / "devices.json").write_text(json.dumps(records))

    @staticmethod
    def tell(agent, command):
        agent.stdin.write(command + "\n")
        agent.stdin.flush()

    @property
    def agent_log(self):
        return self.home / ".local/state/zarvil/agent.log"

    @property
    def settings_file(self):
        return self.home / "Library/Preferences/com.Tessrow.Zarvil.plist"

    def stored(self, key):
        """What the agent has stored under a key, as text; None when it has not."""
        if not self.settings_file.exists():
            return None
        return json.loads(self.settings_file.read_text()).get(key)

    # The bus.

    def owner(self, name):
        has = self.bus.call_sync("org.freedesktop.DBus", "/org/freedesktop/DBus",
                                 "org.freedesktop.DBus", "NameHasOwner",
                                 GLib.Variant("(s)", (name,)), None, 0, 2000, None)
        if not has.unpack()[0]:
            return None
        pid = self.bus.call_sync("org.freedesktop.DBus", "/org/freedesktop/DBus",
                                 "org.freedesktop.DBus", "GetConnectionUnixProcessID",
                                 GLib.Variant("(s)", (name,)), None, 0, 2000, None)
        return pid.unpack()[0]

    def kill_owner(self, name):
        """Ends an agent that the pane itself has launched in this session."""
        with contextlib.suppress(GLib.Error, ProcessLookupError):
            pid = self.owner(name)
            if pid and pid != os.getpid():
                os.kill(pid, signal.SIGKILL)

    def broadcast(self, message, info=None):
        """Sends a message from a connection that is nobody's agent."""
        payload = GLib.Variant("(a{sv})", (info or {},))
        self.bus.emit_signal(None, PATH, AGENT_NAME, message, payload)
        self.bus.flush_sync()

    # The pane.

    def start_host(self, *panes, wrapper=()):
        """With the pane of the build, or the given one; with `None` the host looks for panes."""
        panes = [pane for pane in panes or (BUNDLE,) if pane]
        host = self.start(*wrapper, BUILD / "bin/zarvil-preferences", "--root", self.root, *panes,
                          env=dict(os.environ, QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1"))
        wait_until(lambda: self.application(host.pid), "the window is on the accessibility bus")
        return host

    @staticmethod
    def application(pid):
        desktop = Atspi.get_desktop(0)
        for index in range(desktop.get_child_count()):
            application = desktop.get_child_at_index(index)
            if application and application.get_process_id() == pid:
                return application
        return None


def clear(text):
    """A name without its mnemonic's mark."""
    return (text or "").replace("&", "")


def descendants(node):
    for index in range(node.get_child_count()):
        with contextlib.suppress(GLib.Error):
            child = node.get_child_at_index(index)
            if child is None:
                continue
            child.clear_cache()
            yield child
            yield from descendants(child)


class Pane:
    """The pane of a running preferences application, as the user meets it."""

    def __init__(self, session, pid):
        self.session = session
        self.pid = pid

    def find(self, name, role=None):
        application = self.session.application(self.pid)
        if application is None:
            return None
        for node in descendants(application):
            with contextlib.suppress(GLib.Error):
                if clear(node.get_name()) == name and role in (None, node.get_role_name()):
                    return node
        return None

    def get(self, name, role=None):
        return wait_until(lambda: self.find(name, role), f"there is a {role or 'thing'} {name!r}")

    def has(self, name, state, role=None):
        node = self.find(name, role)
        return node is not None and node.get_state_set().contains(state)

    def checked(self, name):
        return self.has(name, Atspi.StateType.CHECKED)

    def enabled(self, name):
        return self.has(name, Atspi.StateType.SENSITIVE)

    def showing(self, name):
        return self.has(name, Atspi.StateType.SHOWING)

    def press(self, name, role=None):
        node = self.get(name, role)
        wait_until(lambda: self.enabled(name), f"{name!r} can be pressed")
        assert node.get_action_iface().do_action(0)

    @staticmethod
    def strike(*keys):
        """Strikes keys, by their X names, in the widget that has the keyboard."""
        subprocess.run(["xdotool", "key", *keys], check=True)

    def enter(self, name, text):
        """Replaces a field's text by typing on the keyboard and ends the edit with Return."""
        self.type(name, text)
        self.strike("Return")

    def type(self, name, text):
        """Replaces a field's text by typing on the keyboard."""
        field = self.get(name, "text")
        wait_until(lambda: self.enabled(name), f"{name!r} can be edited")
        field.get_component_iface().grab_focus()
        wait_until(lambda: self.has(name, Atspi.StateType.FOCUSED, "text"), f"{name!r} has focus")
        self.strike("ctrl+a", "BackSpace")
        for number, line in enumerate(text.split("\n")):
            # Typed as a character, a line feed is a key that fields ignore.
            if number:
                self.strike("Return")
            if line:
                subprocess.run(["xdotool", "type", "--delay", "20", "--", line], check=True)
        wait_until(lambda: self.text(name) == text, f"{text!r} is typed")

    def text(self, name):
        field = self.find(name, "text")
        return field and field.get_text_iface().get_text(0, -1)

    def shown_things(self):
        for node in descendants(self.session.application(self.pid)):
            if node.get_state_set().contains(Atspi.StateType.SHOWING):
                yield node

    def rows(self, name):
        """The rows of a list by name, each with whether it is ticked."""
        return [(row.get_name(), row.get_state_set().contains(Atspi.StateType.CHECKED))
                for row in descendants(self.find(name, "list"))]

    def alert(self):
        """The text of the alert on the screen, if there is one."""
        for node in self.shown_things():
            if node.get_role_name() == "alert":
                return next(part.get_name() for part in descendants(node)
                            if part.get_role_name() == "label" and part.get_name())
        return None

    def dismiss_alert(self):
        self.press("OK", "push button")
        wait_until(lambda: self.alert() is None, "the alert is gone")

    def pixels(self, name):
        """The colors that a thing has on the screen, as red, green and blue of 0 to 255."""
        area = self.get(name).get_component_iface().get_extents(Atspi.CoordType.SCREEN)
        picture = subprocess.run(
            ["import", "-silent", "-window", "root", "-crop",
             f"{area.width}x{area.height}+{area.x}+{area.y}", "-depth", "8", "rgb:-"],
            check=True, stdout=subprocess.PIPE).stdout
        return set(zip(picture[0::3], picture[1::3], picture[2::3]))

    def choose_tab(self, name):
        """Presses a tab and waits until its page shows."""
        def find():
            tabs = [tab for tab in descendants(self.session.application(self.pid))
                    if tab.get_role_name() == "page tab"]
            names = [clear(tab.get_name()) for tab in tabs]
            return (tabs, names.index(name)) if name in names else None

        tabs, index = wait_until(find, f"there is the tab {name}")
        tabs[index].get_action_iface().do_action(0)
        wait_until(lambda: self.page_shows(index), f"the page {name} shows")

    def page_shows(self, index):
        application = self.session.application(self.pid)
        pages = [node for node in descendants(application)
                 if node.get_role_name() == "layered pane"]
        # A window that is just coming up has none yet.
        return bool(pages) and (pages[0].get_child_at_index(index).get_state_set()
                                .contains(Atspi.StateType.SHOWING))


class SystemTest(unittest.TestCase):
    """A test with a session of its own; `start` brings up the agent and the window."""

    def setUp(self):
        self.session = Session()
        self.addCleanup(self.session.close)

    def start(self, *agent_options):
        self.agent = self.session.start_agent(*agent_options)
        self.start_host()

    def start_host(self):
        self.host = self.session.start_host()
        self.pane = Pane(self.session, self.host.pid)

    def end(self, process):
        process.terminate()
        process.wait(PATIENCE)

    def tell(self, command):
        self.session.tell(self.agent, command)

"""The pane in GNUstep's own preferences application, operated by mouse and keys, and the agent's end
in a process of its own. Where the controls stand, and what they show, the application writes down
by a bundle that is loaded into it. To be run on a private display, with private GNUstep folders."""

import json
import os
import pathlib
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import unittest

BUNDLE = pathlib.Path(os.environ["ZARVIL_PANE_BUNDLE"])
PLAYED_AGENT = os.environ["ZARVIL_PLAYED_AGENT"]
REPORTING = os.environ["ZARVIL_WINDOW_REPORT_BUNDLE"]
PRELOAD = os.environ.get("ZARVIL_PRELOAD", "")
PATIENCE = 60  # seconds

# Icons of the host's own; the row of the agent at the width that it gives every pane.
FIRST_ICON, SHOW_ALL = (52, 78), (40, 22)
AGENT_ROW = "300x24+35+124"
CANCEL, CONFIRM = "uninstallSheetFinished:", "unistall:"


def output(*command):
    return subprocess.run([str(word) for word in command], check=True, capture_output=True).stdout


def wait_until(condition, what):
    deadline = time.monotonic() + PATIENCE
    while time.monotonic() < deadline:
        result = condition()
        if result:
            return result
        time.sleep(0.02)
    raise AssertionError(f"waited {PATIENCE} s in vain: {what}")


def paths_below(folder):
    return {str(path.relative_to(folder)) for path in folder.rglob("*")}


class Preferences(unittest.TestCase):
    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="zarvil-cocoa-"))
        self.addCleanup(shutil.rmtree, self.folder, ignore_errors=True)
        bundles = pathlib.Path(os.environ["GNUSTEP_CONFIG_FILE"]).parent / "Library/Bundles"
        self.bundle = bundles / BUNDLE.name
        shutil.rmtree(self.bundle, ignore_errors=True)
        shutil.copytree(BUNDLE, self.bundle)
        self.library = pathlib.Path(os.environ["HOME"]) / "Library"
        self.lay_out_product()
        self.report = self.folder / "report"
        self.cases = json.loads(output(PLAYED_AGENT, "--cases"))
        self.start("openbox")
        # A window that is mapped while the manager starts is managed by nobody.
        wait_until(lambda: b"window id" in output("xprop", "-root", "_NET_SUPPORTING_WM_CHECK"),
                   "windows are managed")
        self.start_agent()

    def start_host(self):
        sanitized = {"LD_PRELOAD": PRELOAD, "ASAN_OPTIONS": "detect_leaks=0"} if PRELOAD else {}
        self.host = self.start("SystemPreferences", "-GSAppKitUserBundles", f'("{REPORTING}")',
                               env=dict(os.environ, ZARVIL_ROOT=str(self.folder / "root"),
                                        ZARVIL_WINDOW_REPORT=str(self.report), **sanitized))
        self.window = self.window_named("^System Preferences")
        output("xdotool", "windowactivate", "--sync", self.window)

    def start(self, *command, **options):
        process = subprocess.Popen(command, stderr=subprocess.DEVNULL, **options)
        self.addCleanup(self.end, process)
        return process

    @staticmethod
    def end(process):
        if process.poll() is None:
            process.kill()
        process.wait()
        for pipe in filter(None, (process.stdin, process.stdout)):
            pipe.close()

    def lay_out_product(self):
        installed = self.library / "PreferencePanes" / BUNDLE.name
        shutil.copytree(BUNDLE, installed, dirs_exist_ok=True)
        for kept in ("Preferences/com.Tessrow.Zarvil.plist", "Preferences/another.plist",
                     "PreferencePanes/another.prefPane", "Zarvil Scripts/a.zvscript"):
            (self.library / kept).parent.mkdir(parents=True, exist_ok=True)
            (self.library / kept).touch()
        for application in ("Zarvil.app", "Another.app"):
            (self.folder / "root/Applications" / application / "Resources").mkdir(parents=True)

    # The agent.

    def start_agent(self):
        self.agent = self.start(PLAYED_AGENT, stdin=subprocess.PIPE, stdout=subprocess.PIPE)
        os.set_blocking(self.agent.stdout.fileno(), False)
        self.heard = b""
        self.hear("ready")

    def send(self, message, info=None):
        line = message if info is None else f"{message} {json.dumps(info)}"
        self.agent.stdin.write(line.encode() + b"\n")
        self.agent.stdin.flush()

    def hear(self, message):
        """Waits for a message and forgets what came up to it."""
        def found():
            self.heard += self.agent.stdout.read() or b""
            head, line, rest = self.heard.partition(message.encode() + b"\n")
            if line:
                self.heard = rest
            return line
        wait_until(found, f"the agent hears {message}")

    def hear_only(self, messages):
        """Waits for them, and fails when something else came before or among them."""
        lines = "".join(message + "\n" for message in messages).encode()

        def found():
            self.heard += self.agent.stdout.read() or b""
            return len(self.heard) >= len(lines)
        wait_until(found, f"the agent hears {messages}")
        heard, self.heard = self.heard, b""
        self.assertEqual(heard, lines)

    # The window.

    @staticmethod
    def windows_named(name):
        # Fails when there is none, and with words when a window goes during the search.
        def search():
            found = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", name],
                                   capture_output=True)
            return None if found.stderr else (found.stdout.decode().split(),)
        return wait_until(search, "a search of the windows")[0]

    def window_named(self, name):
        return wait_until(lambda: self.windows_named(name), f"a window {name}")[0]

    def picture(self, region=None):
        crop = ("-crop", region) if region else ()
        # Fails when the window changes its size meanwhile.
        return wait_until(lambda: subprocess.run(
            ["import", "-silent", "-window", self.window, *crop, "rgb:-"],
            capture_output=True).stdout, "a picture of the window")

    def click(self, place, window=None):
        # Long enough for GNUstep to see both the press and the release.
        output("xdotool", "mousemove", "--window", window or self.window, *place,
               "mousedown", 1, "sleep", 0.1, "mouseup", 1)

    # What it says of itself.

    def reported(self):
        return wait_until(lambda: self.report.exists() and json.loads(self.report.read_text()),
                          "a report")

    def shown(self, name):
        """Of an outlet, or of a control without one by its action."""
        return self.reported()["controls"].get(name, {})

    def wait_for(self, name, **facts):
        wait_until(lambda: facts.items() <= self.shown(name).items(), f"{name} shows {facts}")

    def press(self, name):
        control = wait_until(lambda: self.shown(name), f"there is {name}")
        if "place" not in control:
            self.show_page(control["page"])

        def ready():
            control = self.shown(name)
            return control.get("enabled", 1) and control.get("place")
        window, *place = wait_until(ready, f"{name} can be pressed")
        output("xdotool", "mousemove", "--window", window, *place, "mousedown", 1)
        wait_until(lambda: self.reported()["pressed"], f"{name} is pressed")
        output("xdotool", "mouseup", 1)
        wait_until(lambda: self.host.poll() is not None or not self.reported()["pressed"],
                   f"{name} is released")

    def show_page(self, page):
        window, *place = self.shown(str(page))["place"]
        output("xdotool", "mousemove", "--window", window, *place, "mousedown", 1)
        wait_until(lambda: any(control.get("page") == page and "place" in control
                               for control in self.reported()["controls"].values()), "the page")
        output("xdotool", "mouseup", 1)

    def enter(self, name, text):
        self.press(name)
        wait_until(lambda: self.reported()["focus"] == name, f"{name} has the keyboard")
        output("xdotool", "key", "Home", "shift+End", "type", text)
        output("xdotool", "key", "Return")

    def walk(self, key):
        """The controls that a key leads to, all around from the host's own."""
        walked = []
        focus = self.reported()["focus"]
        while True:
            output("xdotool", "key", key)
            former = focus
            focus = wait_until(lambda: (self.reported()["focus"] or former) != former and
                               self.reported()["focus"], f"{key} leads on from {former}")
            if focus in walked:
                start = walked.index("showAllButtAction:")
                return walked[start:] + walked[:start]
            walked.append(focus)

    def settled(self):
        picture = None
        while picture != (picture := self.picture()):
            time.sleep(0.1)
        return picture

    def click_until_it_shows(self, place):
        before = self.settled()
        self.click(place)
        wait_until(lambda: self.picture() != before, "the click shows")

    @property
    def icon(self):
        # The icons stand in the order of their labels, seven in a row; ours is the last.
        others = len(list(pathlib.Path("/usr/lib/GNUstep/Bundles").glob("*.prefPane")))
        return 52 + 80 * (others % 7), 78 + 87 * (others // 7)

    def open_pane(self):
        self.start_host()
        self.click_until_it_shows(self.icon)
        self.hear("ZVPrefsLoaded")
        # As the agent does: the settings first, then what shows that it is there.
        for message in (*(info for info in self.cases["before"] if info[0] == "ZVSavedPrefs"),
                        ("ZVPingTest",)):
            self.send(*message)
        self.reset()

    def reset(self, **settings):
        """The state in which each case of the tables begins, or one beside it."""
        for message, info in self.cases["before"]:
            self.send(message, {**info, **settings} if message == "ZVSavedPrefs" else info)
        self.hear("ZVState state=1")

    def test_every_control_sends_and_every_setting_shows_what_the_tables_say(self):
        self.open_pane()
        for outlet, typed, sent in self.cases["controls"]:
            with self.subTest(outlet=outlet, typed=typed):
                self.reset()
                if typed:
                    self.enter(outlet, typed)
                else:
                    is_list = outlet.endswith("Devices")
                    self.press(outlet + "/toggleSelectDevice:" if is_list else outlet)
                self.hear_only([message for message in sent.split("; ") if message])
        for key, value, outlet, shown in self.cases["settings"]:
            with self.subTest(setting=key):
                self.reset(**{key: value})
                facts = ({"enabled": 0} if shown == "disabled" else
                         {"text": shown} if shown else {"state": 1})
                self.wait_for(outlet, **facts)

    def test_every_other_message_of_the_agent_shows(self):
        def device(name):
            return {"DeviceName": name, "DeviceVendor": "V", "DeviceSerial": "1"}

        def devices(*names):
            return {"devices": [device(name) for name in names]}

        self.open_pane()
        self.send("ZVDeviceDisconnected", {"DeviceName": "Near", "DeviceVendor": "V",
                                            "DeviceSerial": "1"})
        for message, info, connected, saved in (
                ("ZVAllSavedDevices", devices(), 0, 0),
                ("ZVDeviceConnected", device("A"), 1, 0),
                ("ZVNewSavedDevice", {"device": device("A")}, 0, 1),
                ("ZVAllSavedDevices", devices("A", "B"), 0, 2),
                ("ZVAllConnectedDevices", devices("C", "D", "E"), 3, 2),
                ("ZVDeviceDisconnected", device("D"), 2, 2)):
            with self.subTest(message=message):
                self.send(message, info)
                self.wait_for("connectedDevices", parts=connected)
                self.wait_for("selectedDevices", parts=saved)
        self.send("ZVState2", {"state": False})
        self.wait_for("offDesc", hidden=0)
        self.send("ZVState2", {"state": True})
        self.wait_for("onDesc", hidden=0)
        self.reset(Testing=True)
        self.wait_for("testSettingsButton", enabled=0)
        self.send("ZVTestFinished")
        self.wait_for("testSettingsButton", enabled=1)
        for code, verdict in ((1, "Connection timeout! Check your Internet connection!"),
                              (0, "Settings are valid!")):
            self.send("ZVPushValidationFinished", {"code": code})
            self.wait_for("pushValidationStatus", text=verdict, hidden=0)

    def test_keys_lead_to_every_control_in_the_order_of_the_page(self):
        self.open_pane()
        for page in range(5):
            if page > 0:
                self.show_page(page)
            walked = self.walk("Tab")
            controls = self.reported()["controls"]
            self.assertEqual(set(walked) - {"tabView"}, {
                name for name, control in controls.items()
                if control.get("keys") and "place" in control})
            places = [controls[name]["place"][1:] for name in walked if name != "tabView"]
            for (x, y), (next_x, next_y) in zip(places, places[1:]):
                self.assertTrue(next_y > y + 12 or (abs(next_y - y) <= 12 and next_x > x),
                                f"{walked} of {places}")
            if page == 3:
                self.assertEqual(self.walk("shift+Tab"), walked[:1] + walked[:0:-1])

        # The walk has ended where it began, at one of the page's.
        output("xdotool", "key", *["Tab"] * (len(walked) - walked.index(self.reported()["focus"]) +
                                             walked.index("tabView")), "Left")
        wait_until(lambda: "place" in self.shown("useScriptsButton"), "the page before is shown")

        self.press("uninstallButton")
        self.window_named("^Uninstall Zarvil")
        output("xdotool", "key", "Escape")
        wait_until(lambda: not self.windows_named("^Uninstall Zarvil"), "the panel goes")
        output("xdotool", "key", "F1")
        self.window_named("^Help")

    def test_an_agent_that_freezes_ends_and_comes_back_and_one_that_closes_the_host(self):
        self.open_pane()
        self.press("launchAtLogin")
        self.hear("ZVPrefsChanged prefKey=LaunchAtLogin prefObj=1")
        present = self.picture(AGENT_ROW)

        self.agent.send_signal(signal.SIGSTOP)
        wait_until(lambda: self.picture(AGENT_ROW) != present, "a frozen agent shows")
        self.agent.send_signal(signal.SIGCONT)
        self.hear("ZVPrefsLoaded")
        wait_until(lambda: self.picture(AGENT_ROW) == present, "its return shows")

        self.end(self.agent)
        wait_until(lambda: self.picture(AGENT_ROW) != present, "an agent that has ended shows")
        self.start_agent()
        self.hear("ZVPrefsLoaded")
        wait_until(lambda: self.picture(AGENT_ROW) == present, "the next one shows")

        self.click_until_it_shows(SHOW_ALL)
        self.assertIsNone(self.host.poll())
        self.send("ZVQuitPrefs")
        self.assertEqual(self.host.wait(PATIENCE), 0)

    def test_uninstalling_removes_the_listed_three_alone_and_cancelling_none(self):
        self.open_pane()
        home, root = paths_below(self.library), paths_below(self.folder)

        for choice in (CANCEL, CONFIRM):
            self.press("uninstallButton")
            self.window_named("^Uninstall Zarvil")
            self.assertEqual(paths_below(self.library), home)
            self.press(choice)
            wait_until(lambda: not self.windows_named("^Uninstall Zarvil"), "the panel goes")
        self.hear("ZVQuit")
        gone = ("PreferencePanes/" + BUNDLE.name, "Preferences/com.Tessrow.Zarvil.plist")
        wait_until(lambda: paths_below(self.library) ==
                   {path for path in home if not path.startswith(gone)}, "what is left of home")
        self.assertEqual(paths_below(self.folder), {
            path for path in root if not path.startswith("root/Applications/Zarvil.app")})

    def test_a_layout_that_does_not_load_leaves_the_host_and_its_other_panes(self):
        layout = self.bundle / "Resources/Main.xib"
        whole = layout.read_text()
        layout.write_text(whole[:len(whole) // 2])
        self.start_host()
        for place in (self.icon, SHOW_ALL, FIRST_ICON, SHOW_ALL):
            self.click_until_it_shows(place)
        self.send("ZVPingTest")
        self.assertIsNone(self.host.poll())
        self.assertIsNone(self.agent.stdout.read(), "the pane has asked for nothing")


if __name__ == "__main__":
    unittest.main(argv=[sys.argv[0], *(f"Preferences.{name}" for name in sys.argv[1:])])

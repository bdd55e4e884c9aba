"""Uninstalling from an installed tree, and what the pane has opened outside of itself."""

import hashlib
import json
import os
import pathlib
import signal
import subprocess
import unittest

import desktop
from desktop import AGENT_NAME, Pane, Session, wait_until

# Agent, pane and host keep files of their own there while they run.
RUNTIME_FOLDERS = ("home/.cache", "home/.config", "home/.local")


def snapshot(folder):
    """Every entry below a folder with a digest of its contents; links are not followed."""
    entries = {}
    for place, folders, files in os.walk(folder):
        for name in folders + files:
            path = pathlib.Path(place, name)
            relative = str(path.relative_to(folder))
            if relative.startswith(RUNTIME_FOLDERS):
                continue
            if path.is_symlink():
                entries[relative] = os.readlink(path)
            else:
                entries[relative] = path.is_dir() or hashlib.sha1(path.read_bytes()).hexdigest()
    return entries


def without(entries, *removed):
    return {path: content for path, content in entries.items()
            if not any(path == item or path.startswith(item + "/") for item in removed)}


def press_key(key):
    subprocess.run(["xdotool", "key", key], check=True)


class MaintenanceTest(unittest.TestCase):
    def setUp(self):
        self.session = Session()
        self.addCleanup(self.session.close)

    def start_host(self, *panes, **options):
        self.host = self.session.start_host(*panes, **options)
        self.pane = Pane(self.session, self.host.pid)

    def start(self, *panes):
        self.agent = self.session.start_agent()
        self.start_host(*panes)
        wait_until(lambda: self.pane.showing("Zarvil is running"), "the pane is alive")

    def log_lines(self, part):
        log = self.session.agent_log
        return [line for line in log.read_text().splitlines() if part in line]


class Uninstall(MaintenanceTest):
    AGENT = "root/Applications/Zarvil.app"
    PANE = "home/Library/PreferencePanes/Zarvil Preferences.prefPane"
    SETTINGS = "home/Library/Preferences/com.Tessrow.Zarvil.plist"

    def setUp(self):
        super().setUp()
        self.outside = self.session.folder / "outside"
        self.outside.mkdir()
        (self.outside / "kept.txt").write_text("not the product's")
        bundle = self.session.install_pane()
        (bundle / "Contents/elsewhere").symlink_to(self.outside)
        (self.application / "elsewhere").symlink_to(self.outside)
        (self.application / "Resources/deep").mkdir(parents=True)
        (self.application / "Resources/deep/.hidden").write_text("")
        (self.application.parent / "Zarvil.app.old").mkdir()
        (bundle.parent / "Another.prefPane").write_text("no bundle at all")
        self.session.install_pane(self.session.root / "Library/PreferencePanes")
        scripts = self.session.home / "Library/Zarvil Scripts"
        scripts.mkdir()
        (scripts / "Say goodbye.scpt").write_text("say \"goodbye\"")
        self.session.settings_file.parent.mkdir()
        (self.session.settings_file.parent / "com.Tessrow.Other.plist").write_text("{}")
        self.session.settings_file.write_text(json.dumps({"ShutdownDelay": 75}))

    @property
    def application(self):
        return self.session.folder / self.AGENT

    def snapshot(self):
        return snapshot(self.session.folder)

    def open_panel(self):
        self.pane.choose_tab("About")
        self.pane.press("Uninstall…")
        wait_until(lambda: self.pane.showing("Uninstall Zarvil?"), "the panel shows")
        wait_until(lambda: self.focused("Cancel"), "Cancel is what the keyboard reaches first")

    def focused(self, name):
        return self.pane.has(name, desktop.Atspi.StateType.FOCUSED, "push button")

    def uninstall(self):
        self.open_panel()
        self.pane.press("Uninstall", "push button")
        self.assertEqual(self.host.wait(desktop.PATIENCE), -signal.SIGKILL)

    def test_removes_just_agent_pane_and_settings_and_ends_both(self):
        self.start(None)
        before = self.snapshot()
        self.uninstall()
        self.assertEqual(self.agent.wait(desktop.PATIENCE), 0)
        self.assertEqual(self.snapshot(), without(before, self.AGENT, self.PANE, self.SETTINGS))
        self.assertEqual(len(self.log_lines("Asked to quit")), 1)

    def test_works_without_an_agent_and_removes_a_linked_application_s_link_alone(self):
        target = self.outside / "Zarvil.app"
        self.application.rename(target)
        self.application.symlink_to(target)
        self.start_host(None)
        before = self.snapshot()
        self.uninstall()
        self.assertEqual(self.snapshot(), without(before, self.AGENT, self.PANE, self.SETTINGS))
        self.assertIsNone(self.session.owner(AGENT_NAME))

    def test_a_protected_applications_folder_keeps_the_agent_whole(self):
        folder = self.application.parent
        folder.chmod(0o555)
        self.addCleanup(folder.chmod, 0o755)
        # Permissions do not hold a superuser who has this capability.
        superuser = os.geteuid() == 0
        self.start_host(None, wrapper=("setpriv", "--bounding-set", "-dac_override")
                        if superuser else ())
        before = self.snapshot()
        self.uninstall()
        self.assertEqual(self.snapshot(), without(before, self.PANE, self.SETTINGS))

    def test_every_way_of_cancelling_leaves_all_and_the_pane_usable(self):
        self.start(None)
        self.pane.choose_tab("General")
        before = self.snapshot()
        for way, cancel in (("button", lambda: self.pane.press("Cancel", "push button")),
                            ("Escape", lambda: press_key("Escape")),
                            ("Return", lambda: press_key("Return")),
                            ("closing", lambda: press_key("alt+F4")),
                            ("Escape on Uninstall", self.reach_uninstall_and_escape),
                            ("Return once more", lambda: press_key("Return"))):
            with self.subTest(way):
                self.open_panel()
                cancel()
                wait_until(lambda: not self.pane.showing("Uninstall Zarvil?"), "the panel goes")
        self.assertEqual(self.snapshot(), before)
        self.pane.choose_tab("General")
        self.pane.press("Launch Zarvil at login")
        wait_until(lambda: self.session.stored("LaunchAtLogin"), "the pane still works")
        self.assertIsNone(self.host.poll())
        self.assertEqual(self.log_lines("Asked to quit"), [])

    def reach_uninstall_and_escape(self):
        press_key("Tab")
        wait_until(lambda: self.focused("Uninstall"), "Tab reaches the other button")
        press_key("Escape")

    def test_the_host_can_be_ended_while_the_panel_asks(self):
        for end, status in ((lambda: self.host.terminate(), 0),
                            (lambda: self.session.tell(self.agent, "quitprefs"), -signal.SIGKILL)):
            self.start(None)
            before = self.snapshot()
            self.open_panel()
            end()
            self.assertEqual(self.host.wait(desktop.PATIENCE), status)
            self.assertEqual(self.snapshot(), before)
            self.assertIsNone(self.agent.poll())
            self.agent.terminate()
            self.agent.wait()


class Outside(MaintenanceTest):
    # Each with the tab that it stands on, in the tab's order.
    LINKS = (
        ("About", "http://www.tessrow.example/", "http://www.tessrow.example/"),
        ("About", "Support", "http://www.tessrow.example/zarvil/support"),
        ("About", "Send feedback", "mailto:feedback@tessrow.example?SUBJECT=Feedback"),
        ("About", "Follow us", "https://social.example/tessrow"),
        ("About", "Recommend Zarvil",
         "https://post.example/intent/tweet?button_hashtag=%23Zarvil&text=Zarvil%20shuts%20my%20"
         "computer%20down%20in%20order%20when%20the%20power%20fails%3A%20http%3A%2F%2Fwww.tessrow."
         "example%2Fzarvil%20by%20%40tessrow"),
        ("Alerts", "What is Pushover?", "https://pushover.net/"),
    )

    def test_each_link_and_the_log_open_once_and_updates_reach_the_agent(self):
        record = self.session.install_opener()
        self.start()
        for count, (tab, name, _) in enumerate(self.LINKS, start=1):
            self.pane.choose_tab(tab)
            self.pane.press(name)
            wait_until(lambda: len(record.read_text().splitlines()) >= count, f"{name} opens")
        self.pane.choose_tab("About")
        self.pane.press("Check for Updates Now")
        wait_until(lambda: self.log_lines("check for updates"), "the agent was asked")
        self.pane.press("View Log")
        log = str(self.session.agent_log)
        wait_until(lambda: log in record.read_text(), "the agent shows its log")
        self.assertEqual(record.read_text().splitlines(),
                         [address for _, _, address in self.LINKS] + [log])
        self.assertEqual(len(self.log_lines("check for updates")), 1)
        self.assertEqual(len(self.log_lines("Showing the log")), 1)


if __name__ == "__main__":
    unittest.main(verbosity=2)

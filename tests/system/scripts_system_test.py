"""Scripts in a real window, with their files in a real folder."""

import os
import signal
import unittest

from desktop import SystemTest, wait_until

SWITCH = "Run these scripts when the power fails"
NEW, CREATE = "Title of the new script", "Create"
TITLE, TEXT = "Title of the script", "Text of the script"


def is_alive(group):
    try:
        os.killpg(group, 0)
    except ProcessLookupError:
        return False
    return True


class Scripts(SystemTest):
    def setUp(self):
        super().setUp()
        self.folder = self.session.home / "Library/Zarvil Scripts"

    def start(self):
        super().start()
        self.show_scripts()

    def show_scripts(self):
        wait_until(lambda: self.pane.showing("Zarvil is running"), "the pane is alive")
        self.pane.choose_tab("Scripts")

    def restart_host(self):
        self.start_host()
        self.show_scripts()

    def switch(self, on):
        self.pane.press(SWITCH, "check box")
        wait_until(lambda: self.session.stored("UseScripts") == on, "the switch is stored")

    def files(self):
        """Everything in the folder, hidden or not, with its bytes."""
        return {file.name: file.read_bytes() for file in self.folder.iterdir()}

    def put(self, title, text):
        self.folder.mkdir(parents=True, exist_ok=True)
        (self.folder / f"{title}.zvscript").write_bytes(text.encode())

    def titles(self):
        buttons = (node for node in self.pane.shown_things() if node.get_role_name() == "push button")
        return {button.get_name().removeprefix("Edit “").removesuffix("”")
                for button in buttons if button.get_name().startswith("Edit “")}

    def expect_alert(self, words):
        text = wait_until(self.pane.alert, f"an alert says {words}")
        self.assertIn(words, text)
        self.pane.dismiss_alert()

    def run_and_expect_alert(self, title, words):
        self.pane.press(f"Run “{title}”")
        self.expect_alert(words)

    def change(self, title, new_title, text):
        """Edits a script in place, and leaves the fields open."""
        self.pane.press(f"Edit “{title}”")
        self.pane.type(TEXT, text)
        self.pane.type(TITLE, new_title)

    def test_a_script_is_created_edited_run_and_removed(self):
        self.start()
        self.assertFalse(self.pane.enabled(NEW))
        self.switch(True)
        wait_until(self.folder.is_dir, "the folder is there")
        self.assertFalse(self.pane.enabled(CREATE))
        self.pane.type(NEW, "x.y")
        self.pane.press(CREATE, "push button")
        wait_until(lambda: self.titles() == {"x.y"}, "it is listed")
        self.assertEqual(self.files(), {"x.y.zvscript": b""})
        self.assertEqual(self.pane.text(NEW), "")
        self.assertFalse(self.pane.enabled(CREATE))
        self.run_and_expect_alert("x.y", "Can't execute empty script!")

        failing = "echo out\necho first >&2\necho the last word >&2\nexit 3"
        self.change("x.y", "other title", failing)
        self.assertEqual(self.files(), {"x.y.zvscript": b""})
        self.pane.press("Save “x.y”")
        wait_until(lambda: self.titles() == {"other title"}, "it is renamed")
        self.assertEqual(self.files(), {"other title.zvscript": failing.encode()})
        self.run_and_expect_alert("other title", "the last word")

        # Running ends the edit, and what was just typed is what runs.
        mark = self.session.folder / "mark"
        good = f"echo ran >{mark}"
        self.change("other title", "other title", good)
        self.pane.press("Run “other title”")
        wait_until(mark.exists, "it ran")
        wait_until(lambda: self.titles() == {"other title"}, "the window goes on")
        self.assertIsNone(self.pane.alert())
        self.assertEqual(self.files(), {"other title.zvscript": good.encode()})

        self.pane.press("Remove “other title”")
        wait_until(lambda: not self.titles(), "it is gone from the list")
        self.assertEqual(self.files(), {})
        self.assertIsNone(self.pane.alert())

    def test_scripts_are_there_again_after_a_restart_and_a_switch(self):
        for title in ("a", "ü and 漢字"):
            self.put(title, f"echo {title}\n")
        before = self.files()
        self.start()
        self.switch(True)
        both = {"a", "ü and 漢字"}
        wait_until(lambda: self.titles() == both, "they are listed")
        self.pane.type(NEW, "a")
        self.assertFalse(self.pane.enabled(CREATE))
        self.end(self.host)
        self.restart_host()
        wait_until(lambda: self.titles() == both, "they are listed again")
        self.switch(False)
        wait_until(lambda: not self.titles(), "the list is empty")
        self.assertEqual(self.files(), before)
        self.switch(True)
        wait_until(lambda: self.titles() == both, "they are listed once more")

    def test_a_hanging_script_can_be_stopped_and_ends_with_the_host(self):
        pid_file = self.session.folder / "pid"
        os.environ["TMPDIR"] = str(self.session.folder)
        self.put("hang", f"trap '' TERM; echo $$ >{pid_file}; while :; do sleep 1000; done")

        def stop():
            self.pane.press("Stop", "push button")
            wait_until(lambda: not self.pane.showing(notice), "the window goes")
            self.assertIsNone(self.pane.alert())
            self.switch(False)
            self.switch(True)

        def end(status, signal_host):
            signal_host()
            self.assertEqual(self.host.wait(), status)
            self.restart_host()

        def run():
            pid_file.unlink(missing_ok=True)
            wait_until(lambda: self.titles() == {"hang"}, "it is listed")
            self.pane.press("Run “hang”")
            wait_until(lambda: self.pane.showing(notice), "a window names it")
            return int(pid_file.read_text())

        notice = "The script “hang” is running."
        self.start()
        self.switch(True)
        for way in (stop, lambda: end(0, self.host.terminate),
                    lambda: end(-signal.SIGKILL, self.host.kill)):
            group = run()
            way()
            wait_until(lambda: not is_alive(group), "its processes are gone")
            wait_until(lambda: not list(self.session.folder.glob("zarvil-script-*")),
                       "its copy is gone")


if __name__ == "__main__":
    unittest.main(verbosity=2)

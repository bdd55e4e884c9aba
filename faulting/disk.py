"""Folders that are full, protected or taken away, and programs killed while they save."""

import contextlib
import errno
import random
import shutil
import signal
import subprocess
import time

from common import AGENT_NAME, BOXES, BUILD, GLib, Run, desktop, main, times, turn, wait_until

chance = random.Random(13)
TITLE, TEXT, SWITCH = "Title of the script", "Text of the script", "Run these scripts when the power fails"
NOT_SAVED = "Not saved"


class ScriptRun(Run):
    """A session whose home folder is a small disk of its own, with scripts switched on."""

    def __init__(self, size="8m"):
        super().__init__()
        self.home = self.session.home
        subprocess.run(["mount", "-t", "tmpfs", "-o", f"size={size}", "tmpfs", self.home], check=True)
        self.folder = self.home / "Library/Zarvil Scripts"
        self.folder.mkdir(parents=True)

    def __exit__(self, *arguments):
        subprocess.run(["umount", "--lazy", self.home], check=False)
        super().__exit__(*arguments)

    def remount(self, option):
        subprocess.run(["mount", "-o", f"remount,{option}", self.home], check=True)

    def file(self, title):
        return self.folder / f"{title}.zvscript"

    def start(self):
        self.agent = self.session.start_agent()
        self.start_host()
        self.wait_for_agent()
        self.pane.choose_tab("Scripts")
        self.pane.press(SWITCH, "check box")

    def part(self, title, name, role=None):
        """A thing on a script's card, which is looked for once."""
        card = self.node(f"Script “{title}”")
        card.clear_cache()
        for index in range(card.get_child_count()):
            with contextlib.suppress(GLib.Error):
                child = card.get_child_at_index(index)
                if child is None:
                    continue
                child.clear_cache()
                if name in child.get_name() and role in (None, child.get_role_name()):
                    return child
        return None

    def press(self, title, what):
        button = wait_until(lambda: self.part(title, f"{what} “{title}”"), f"there is {what}")
        assert button.get_action_iface().do_action(0)

    def type(self, title, text):
        """Opens the editor and puts in a text."""
        self.press(title, "Edit")
        field = wait_until(lambda: self.part(title, TEXT, "text"), "the editor is open")
        field.get_editable_text_iface().set_text_contents(text)
        wait_until(lambda: field.get_text_iface().get_text(0, -1) == text, "the text is typed")

    def save(self, title):
        self.press(title, "Save")
        wait_until(lambda: self.part(title, f"Edit “{title}”"), "the editor is closed")

    def says_unsaved(self, title):
        note = self.part(title, NOT_SAVED)
        return note is not None and note.get_state_set().contains(desktop.Atspi.StateType.SHOWING)

    def save_again(self, title):
        """Opens the editor, which shows what the card holds, and ends it."""
        self.press(title, "Edit")
        self.save(title)


def refused_and_saved_later(run, title, refuse, permit, former):
    """A save that fails leaves the file as it was and the text in the card; later it is saved."""
    text = f"echo {chance.random()}\n" + "#" * 20_000
    run.type(title, text)
    refuse()
    run.save(title)
    wait_until(lambda: run.says_unsaved(title), "the card says that it is not saved")
    # The former file may have been in the way as well.
    while run.pane.alert():
        run.pane.press("OK", "push button")
        turn(0.3)
    if former is not None:
        assert run.file(title).read_text() == former, "the file is not what it was"
    permit()
    run.save_again(title)
    wait_until(lambda: run.file(title).read_text() == text, "it is saved at last")
    wait_until(lambda: not run.says_unsaved(title), "the card is content")
    run.alive()
    assert [path.name for path in run.folder.iterdir()] == [f"{title}.zvscript"], list(run.folder.iterdir())
    return text


def setting_outlives(run, refuse, permit):
    """The agent keeps what it cannot write, and writes it when it can."""
    box, key = list(BOXES.items())[0]
    run.pane.choose_tab("General")
    refuse()
    before = run.pane.checked(box)
    run.pane.press(box)
    turn(1.5)
    with contextlib.suppress(ValueError):
        assert bool(run.session.stored(key)) == before, "it was stored on a disk that refuses"
    permit()
    wait_until(lambda: run.session.stored(key) == (not before), "the setting is stored at last")
    run.pane.choose_tab("Scripts")


def on_a_disk_that_refuses(refuse, permit):
    count = times(20)
    with ScriptRun() as run:
        run.file("a").write_text("echo first")
        run.start()
        text = "echo first"
        for _ in range(count):
            text = refused_and_saved_later(run, "a", lambda: refuse(run), lambda: permit(run), text)
        setting_outlives(run, lambda: refuse(run), lambda: permit(run))
        refuse(run)
        run.pane.type("Title of the new script", "b")
        run.pane.press("Create", "push button")
        # An empty file needs no space.
        alert = wait_until(lambda: run.pane.alert() or (run.file("b").exists() and "made"), "there is an outcome")
        if alert != "made":
            run.pane.dismiss_alert()
            assert not run.file("b").exists()
        end = run.host
        end.send_signal(signal.SIGTERM)
        assert end.wait(10) == 0
        run.start_host()
        run.wait_for_agent()
        permit(run)
        assert run.file("a").read_text() == text
        return (f"{count} saves refused, none lost, all saved afterwards; a setting kept until it could be "
                f"stored; a new empty script: {alert.split(':')[-1].strip()}; ends and starts on it")


def fill(run):
    size = 1 << 16
    while size:
        try:
            with open(run.home / "filler", "ab") as filler:
                filler.write(b"x" * size)
        except OSError as error:
            assert error.errno == errno.ENOSPC
            size //= 2


def disk_full():
    return on_a_disk_that_refuses(fill, lambda run: (run.home / "filler").unlink(missing_ok=True))


def read_only():
    return on_a_disk_that_refuses(lambda run: run.remount("ro"), lambda run: run.remount("rw"))


def folder_gone():
    """Removed, replaced by a file, or a link to nowhere, while a script is edited."""
    count = times(20)

    def make_file(run):
        run.folder.write_text("no folder")

    def make_link(run):
        run.folder.symlink_to(run.home / "nowhere")

    ways = (lambda run: None, make_file, make_link)
    with ScriptRun() as run:
        run.file("a").write_text("echo first")
        run.start()
        for number in range(count):
            def refuse(way=ways[number % len(ways)]):
                shutil.rmtree(run.folder)
                way(run)

            def permit():
                run.folder.unlink(missing_ok=True)
                run.folder.mkdir()

            text = f"echo {number}\n"
            if number % len(ways):
                refused_and_saved_later(run, "a", refuse, permit, None)
                continue
            run.type("a", text)
            refuse()
            run.save("a")
            if run.says_unsaved("a"):
                permit()
                run.save_again("a")
            wait_until(lambda: run.file("a").read_text() == text, "it is saved")
        return f"{count} times removed, replaced by a file or by a link to nowhere: no text lost, all saved afterwards"


def killed_saving():
    """The host while it saves a script, then the agent while it saves its settings."""
    count = times(200)
    first, second = ("# first\n" + "a" * 300_000, "# second\n" + "b" * 200_000)
    former = new = halves = 0
    delay = 0.1  # in seconds: a button that is pressed in this way is let go after it
    with ScriptRun("60m") as run:
        run.file("a").write_text(first)
        run.start()
        for _ in range(count):
            wanted = second if run.file("a").read_text() == first else first
            run.pane.choose_tab("Scripts")
            run.type("a", wanted)
            run.press("a", "Save")
            time.sleep(delay + chance.uniform(-0.004, 0.004))
            run.host.kill()
            run.host.wait()
            run.session.processes.remove(run.host)
            text = run.file("a").read_text()
            assert text in (first, second), f"a script of {len(text)} bytes is neither the former nor the new"
            # So that about half of them come too early, and as many as can be in between.
            delay += -0.002 if text == wanted else 0.002
            new, former = new + (text == wanted), former + (text != wanted)
            files = len(list(run.folder.iterdir()))
            assert files <= 2, "leftovers pile up"
            halves += files == 2
            run.start_host()
            run.wait_for_agent()
        settings = run.session.settings_file
        for number in range(count):
            wanted = not run.session.stored("LaunchAtLogin")
            run.session.broadcast("ZVPrefsChanged", {"prefKey": GLib.Variant("s", "LaunchAtLogin"),
                                                     "prefObj": GLib.Variant("b", wanted)})
            time.sleep(chance.uniform(0, 0.01))
            run.agent.kill()
            run.agent.wait()
            run.session.stored("LaunchAtLogin")
            wait_until(lambda: not run.session.owner(AGENT_NAME), "the bus forgets the agent")
            run.agent = run.session.start_agent()
        left = [path.name for path in settings.parent.iterdir()]
        run.alive()
        return (f"{count} hosts, each script whole ({former} times the former, {new} times the new, {halves} times "
                f"with one half written beside it); {count} agents, each settings file whole; {len(left)} file(s) "
                "beside it")


if __name__ == "__main__":
    main({"disk-full": disk_full, "read-only": read_only, "folder-gone": folder_gone,
          "killed-saving": killed_saving})

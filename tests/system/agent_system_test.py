"""The agent's program, as its operator and other programs meet it."""

import subprocess
import unittest

from desktop import BUILD, PATIENCE, SystemTest, wait_until


class Program(SystemTest):
    def refusal(self, *arguments):
        outcome = subprocess.run([BUILD / "bin/zarvil-agent", *arguments], text=True,
                                 stdin=subprocess.DEVNULL, capture_output=True, timeout=PATIENCE)
        self.assertEqual(outcome.returncode, 1)
        return outcome.stderr

    def test_refuses_bad_arguments_and_to_be_a_second_one(self):
        for arguments in (("--nonsense",), ("extra",), ("--root", "/no/such"),
                          ("--test-duration", "soon")):
            self.assertTrue(self.refusal(*arguments), arguments)
        agent = self.session.start_agent()
        self.assertIn("another agent is running", self.refusal("--devices", "/dev/null"))
        self.assertIsNone(agent.poll())

    def test_outlives_the_end_of_its_input_and_says_what_it_cannot_read_or_open(self):
        self.session.install_opener()
        (self.session.folder / "bin/xdg-open").write_text("#!/bin/sh\nexit 4\n")
        agent = self.session.start_agent("--devices", "missing.json")
        self.assertEqual(agent.stdout.readline(), "ready\n")
        agent.stdin.write("plug A|B|C\nnonsense\nquitp")
        agent.stdin.close()
        self.assertEqual(agent.stdout.readline(), "ok\n")
        self.assertIn("unknown command", agent.stdout.readline())
        self.session.broadcast("ZVViewLog")
        for problem in ("missing.json", "No application opens"):
            wait_until(lambda: problem in self.session.agent_log.read_text(), f"{problem} is told")
        self.assertIsNone(agent.poll())


if __name__ == "__main__":
    unittest.main(verbosity=2)

"""Tries the scripts in a copy of their folder, where nothing has been built: scripts.py FOLDER"""

import fcntl
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

SCRIPTS = sys.argv.pop(1)

# What every script that builds calls first.
FIRST_STEPS = [["bench.sh"], ["demo.sh"], ["fuzz.sh", "text_operations", "1"], ["limits.sh"], ["package.sh"],
               ["screenshots.sh"], ["test.sh"]]
OTHERS = {"fresh.sh", "fresh_system.sh", "lint.sh", "packages.sh", "tidy.py"}
CONFIGURED = 42


class Scripts(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name) / "a clone for Käthe"
        shutil.copytree(SCRIPTS, self.folder / "scripts")
        self.programs = self.folder / "programs"
        self.environment = {**os.environ, "PATH": f"{self.programs}:{os.environ['PATH']}"}

    def add_program(self, name, *lines):
        self.programs.mkdir(exist_ok=True)
        program = self.programs / name
        program.write_text("\n".join(["#!/bin/sh", *lines, ""]), encoding="utf-8")
        program.chmod(0o755)

    def start(self, *command):
        return subprocess.Popen(command, cwd=self.folder, env=self.environment, text=True, stdin=subprocess.DEVNULL,
                                stdout=subprocess.PIPE, stderr=subprocess.PIPE)

    def run_to_end(self, *command):
        process = self.start(*command)
        output, errors = process.communicate()
        return process.returncode, output, errors

    def test_every_script_reaches_the_build_in_a_fresh_clone(self):
        self.add_program("dpkg-query", "echo installed")
        self.add_program("cmake", f"exit {CONFIGURED}")
        self.assertEqual({path.name for path in (self.folder / "scripts").iterdir()},
                         OTHERS | {command[0] for command in FIRST_STEPS})
        for name, *arguments in FIRST_STEPS:
            with self.subTest(name):
                shutil.rmtree(self.folder / "build", ignore_errors=True)
                code, _, errors = self.run_to_end(f"scripts/{name}", *arguments)
                self.assertEqual((code, errors), (CONFIGURED, ""))

    def test_fresh_says_what_it_does_and_what_it_does_not_know(self):
        code, output, errors = self.run_to_end("scripts/fresh.sh", "--help")
        self.assertEqual((code, errors), (0, ""))
        self.assertIn("usage: scripts/fresh.sh", output)
        for arguments in ["--tests"], ["--compiler-cache"]:
            code, output, errors = self.run_to_end("scripts/fresh.sh", *arguments)
            self.assertEqual((code, output), (2, ""))
            self.assertIn(arguments[0], errors)

    def apt(self, *arguments):
        """A command that runs apt-get in a world of its own, without packages, and the lock on its lists."""
        for name in "state", "lists", "cache":
            (self.folder / name).mkdir()
        (self.folder / "state" / "status").touch()
        configuration = self.folder / "apt.conf"
        configuration.write_text(f"""
            Dir::State "{self.folder}/state";
            Dir::State::Status "{self.folder}/state/status";
            Dir::State::Lists "{self.folder}/lists";
            Dir::Cache "{self.folder}/cache";
            Dir::Etc::SourceList "/dev/null";
            Dir::Etc::SourceParts "/dev/null";
            """, encoding="utf-8")
        self.environment["APT_CONFIG"] = str(configuration)
        self.add_program("sudo", 'exec "$@"')
        command = ["bash", "-c", '. scripts/packages.sh && run_apt "$@"', "bash", *arguments]
        return self.folder / "lists" / "lock", command

    def test_waits_while_another_program_holds_the_lock(self):
        lock, command = self.apt("update")
        with open(lock, "w", encoding="utf-8") as held:
            fcntl.lockf(held, fcntl.LOCK_EX)
            process = self.start(*command)
            self.assertIn("Waiting for another program that installs packages", process.stdout.readline())
            self.assertIsNone(process.poll())
        output, errors = process.communicate()
        self.assertEqual((process.returncode, output, errors), (0, "", ""))

    def test_does_not_wait_when_apt_fails_for_another_reason(self):
        _, command = self.apt("install", "-y", "no-such-package")
        code, output, errors = self.run_to_end(*command)
        self.assertEqual((code, output), (1, ""))
        self.assertIn("Unable to locate package no-such-package", errors)


unittest.main(verbosity=2)

#!/usr/bin/env python3
"""Do the tests notice when the window is wrong? Puts the faults of window.txt into src/window and plays the window's tests and
transcripts with one of them at a time until something fails.

    window.py [--build build/release] [--only 3,17] [--first]
    window.py --list           the faults by number
    window.py --check          whether each stands once in its file

All faults go into one build, each behind a question for the number in WINDOW_FAULT, so that the window is compiled and linked
once; the files are put back as soon as that is done. It refuses to start on a tree with uncommitted changes below src/window.
--first plays only the tests that a fault names, which is quick and tells too few. A fault that nothing finds is printed; write
the test that is missing, or take the fault out with the reason why nobody can see it.
"""

import argparse
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile

HERE = pathlib.Path(__file__).resolve().parent
ROOT = HERE.parent.parent
WINDOW = ROOT / 'src' / 'window'
SCRIPTS = ROOT / 'tests' / 'scripts'
PATIENCE = 900  # seconds for one test program; a window that hangs is found, too

QUESTION = '''#ifndef WINDOW_FAULT
#define WINDOW_FAULT
#include <cstdlib>
inline int windowFault() {
    static const char* const set = std::getenv("WINDOW_FAULT");
    static const int number = set == nullptr ? 0 : std::atoi(set);
    return number;
}
#endif
'''


class Fault:
    def __init__(self, number, head):
        self.number = number
        self.file, rest = head.split(': ', 1)
        self.words, _, first = rest.partition(' ? ')
        self.first = first.split()
        self.old = self.new = None

    def name(self):
        return f'{self.number:3} {self.file}: {self.words}'

    def choice(self):
        """The text that asks which of the two it is."""
        if self.old.endswith(';'):
            return f'{{ if (windowFault() == {self.number}) {{ {self.new} }} else {{ {self.old} }} }}'
        return f'(windowFault() == {self.number} ? ({self.new}) : ({self.old}))'


def faults():
    found = []
    for line in (HERE / 'window.txt').read_text(encoding='utf-8').splitlines():
        if line.startswith('- '):
            found[-1].old = line[2:]
        elif line.startswith('+ '):
            found[-1].new = line[2:]
        elif line and not line.startswith('#'):
            found.append(Fault(len(found) + 1, line))
    return found


def put_into(text, those):
    """The text of a file with its faults; two at one place become one question after the other."""
    places = {}
    for fault in those:
        if text.count(fault.old) != 1:
            sys.exit(f'{fault.name()}: stands {text.count(fault.old)} times: {fault.old}')
        places.setdefault(fault.old, []).append(fault)
    for old, several in places.items():
        choice = old
        for fault in several:
            choice = fault.choice().replace(f'({fault.old})', f'({choice})').replace(f'{{ {fault.old} }}', f'{{ {choice} }}')
        text = text.replace(old, choice)
    return QUESTION + '#line 1\n' + text


def broken_files(all_faults):
    files = {}
    for fault in all_faults:
        files.setdefault(WINDOW / fault.file, []).append(fault)
    return {path: put_into(path.read_text(encoding='utf-8'), those) for path, those in files.items()}


def build(folder, all_faults):
    """Programs with all faults in them, in a folder of their own."""
    if subprocess.run(['git', 'diff', '--quiet', 'HEAD', '--', 'src/window'], cwd=ROOT).returncode:
        sys.exit('commit what is changed below src/window first')
    texts = broken_files(all_faults)
    before = {path: path.read_bytes() for path in texts}
    into = folder / 'faults'
    into.mkdir(exist_ok=True)
    try:
        for path, text in texts.items():
            path.write_text(text, encoding='utf-8')
        targets = ['gtwindow', 'test_window', 'scripts_runner', 'scripts_program']
        if subprocess.run(['cmake', '--build', str(folder), '--target', *targets], cwd=ROOT).returncode:
            sys.exit('the faults cannot be built')
        for name in ('gtwindow', 'test_window', 'scripts_runner'):
            shutil.copy2(folder / 'bin' / name, into / name)
    finally:
        for path, whole in before.items():
            path.write_bytes(whole)
    return into


class Tests:
    """The window's tests, asked whether one of them fails."""

    def __init__(self, folder, programs, scratch):
        self.folder, self.programs, self.scratch = folder, programs, scratch
        listed = (SCRIPTS / 'without-window.txt').read_text(encoding='utf-8').splitlines()
        out = {line.split()[0] for line in listed if line and line[0] not in '# '}
        self.scripts = {p.stem: p for p in sorted(SCRIPTS.rglob('*.gts')) if p.stem not in out}

    def fails(self, fault, command):
        # Without a display there is nothing to see, and nothing beside it to disturb.
        surroundings = {**os.environ, 'WINDOW_FAULT': str(fault), 'QT_QPA_PLATFORM': 'offscreen'}
        try:
            return subprocess.run(command, env=surroundings, timeout=PATIENCE, stdout=subprocess.DEVNULL,
                                  stderr=subprocess.DEVNULL).returncode != 0
        except subprocess.TimeoutExpired:
            return True

    def suite(self, fault, chosen):
        program = str(self.programs / 'test_window')
        return self.fails(fault, [program, '--gtest_fail_fast', '--gtest_brief=1', f'--gtest_filter={chosen}'])

    def script(self, fault, name):
        program = self.folder / 'tests' / 'scripts' / 'Gatewise'
        return self.fails(fault, [str(self.programs / 'scripts_runner'), str(self.programs / 'gtwindow'), str(program),
                                  self.scratch, str(self.scripts[name])])

    def found_by(self, fault, first_only):
        """The test that fails, empty when none does."""
        suites = [name for name in fault.first if '.' in name]
        scripts = [name for name in fault.first if '.' not in name]
        if suites and self.suite(fault.number, ':'.join(suites)):
            return ' '.join(suites)
        for name in scripts:
            if self.script(fault.number, name):
                return name
        if first_only:
            return ''
        for name in self.scripts:
            if name not in scripts and self.script(fault.number, name):
                return name
        return 'test_window' if self.suite(fault.number, '*') else ''


def hunt(options, all_faults):
    folder = (ROOT / options.build).resolve()
    programs = build(folder, all_faults)
    chosen = [f for f in all_faults if not options.only or f.number in options.only]
    with tempfile.TemporaryDirectory() as scratch:
        tests = Tests(folder, programs, scratch)
        named = sorted({name for f in chosen for name in f.first if '.' not in name})
        suites = ':'.join(sorted({name for f in chosen for name in f.first if '.' in name}))
        if (suites and tests.suite(0, suites)) or any(tests.script(0, name) for name in named):
            sys.exit('the tests fail without any fault')
        found = 0
        for fault in chosen:
            test = tests.found_by(fault, options.first)
            found += bool(test)
            print(f'{fault.name()}: {"found by " + test if test else "NOT FOUND"}', flush=True)
    print(f'{found} of {len(chosen)} found')


def main():
    words = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    words.add_argument('--build', default='build/release', help='a build with tests')
    words.add_argument('--only', type=lambda text: {int(n) for n in text.split(',')}, default=set())
    words.add_argument('--first', action='store_true')
    words.add_argument('--list', action='store_true')
    words.add_argument('--check', action='store_true')
    options = words.parse_args()
    all_faults = faults()
    if options.list:
        for fault in all_faults:
            print(fault.name())
    elif options.check:
        broken_files(all_faults)
    else:
        hunt(options, all_faults)


if __name__ == '__main__':
    main()

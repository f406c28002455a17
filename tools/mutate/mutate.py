#!/usr/bin/env python3
"""Does a test notice when the program is wrong? Changes one place of a room at a time, builds what that touches, runs the
tests of that room and counts how many of the changes they find.

    mutate.py [--build build/release] [--rooms plan,export] [--count 200] [--minutes 60] [--seed 1]
    mutate.py --list --rooms plan      prints the changes without making any
    mutate.py --self-test

It works in the tree that it stands in and puts every file back; it refuses to start on a tree with uncommitted changes below
src/, so that `git checkout src` mends whatever a power cut leaves. Changes that cannot be seen from outside stand in equal.txt
beside it, with the reason; they do not count.
"""

import argparse
import pathlib
import random
import re
import subprocess
import sys
import time

HERE = pathlib.Path(__file__).resolve().parent
ROOT = HERE.parent.parent

# Room -> the test programs that look at it. "scripts" are the transcripts.
TESTS = {
    'platform': ['test_platform', 'test_native', 'test_drive'],
    'schedule': ['test_schedule', 'test_selection'],
    'board': ['test_board'],
    'plan': ['test_plan', 'test_export'],
    'selection': ['test_selection'],
    'export': ['test_export'],
    'programs': ['test_programs'],
    'gt1': ['test_gt1'],
    'import': ['test_import'],
    'simulator': ['test_simulator'],
    'logbook': ['test_logbook'],
    'sound': ['test_sound'],
}
# Rooms that only the whole program moves.
WHOLE = ['test_dispatch', 'test_screens', 'test_logscreens', 'test_export_hub', 'test_fly', 'test_announce', 'scripts']
TESTS.update({room: WHOLE for room in ('session', 'work', 'pages', 'input', 'app')})

# What binary operators become. The style puts blanks around them, and none around the brackets of templates.
SWAPS = [(' < ', ' <= '), (' <= ', ' < '), (' > ', ' >= '), (' >= ', ' > '), (' == ', ' != '), (' != ', ' == '),
         (' && ', ' || '), (' || ', ' && '), (' + ', ' - '), (' - ', ' + '), (' * ', ' / '), (' / ', ' * '),
         (' % ', ' / '), (' += ', ' -= '), (' -= ', ' += ')]
WORDS = [('true', 'false'), ('false', 'true')]
NUMBER = re.compile(r"(?<![\w.'])(\d+)(\.\d+)?(?=[,;)\]} +\-*/%<>=]|$)")
STRING = re.compile(r'"([^"\\]*[^"\\\s])"')
CALL = re.compile(r'^\s+[\w.:>\-\[\]]+(\(.*\)| (\+|-)?= .*);$')
CONDITION = re.compile(r'^(\s*(?:\} else )?if )\((.*)\)( \{| [\w:.\->]+.*;)$')


def code_of(line):
    """The line without its comment; empty for what holds no code that runs."""
    text = re.sub(r'\s*//.*', '', line)
    return '' if re.match(r'\s*(#|static_assert|using |namespace |template<)', text) else text


def inside_string(text, at):
    return text[:at].count('"') % 2 == 1


def changes_of(line):
    """Every other form of a line of code."""
    text = code_of(line)
    tail = line[len(text):]
    found = []
    for old, new in SWAPS + WORDS:
        pattern = rf'\b{old}\b' if old.isalpha() else re.escape(old)
        for hit in re.finditer(pattern, text):
            if not inside_string(text, hit.start()):
                found.append(text[:hit.start()] + new + text[hit.end():])
    for hit in NUMBER.finditer(text):
        if inside_string(text, hit.start()):
            continue
        digits = hit.group(0)
        other = digits[:-1] + str((int(digits[-1]) + 1) % 10) if hit.group(2) else str(int(digits) + 1)
        found.append(text[:hit.start()] + other + text[hit.end():])
    for hit in STRING.finditer(text):
        if not inside_string(text, hit.start()):
            last = hit.end() - 2
            found.append(text[:last] + ('x' if text[last] != 'x' else 'y') + text[last + 1:])
    if CALL.match(text) and text.count('(') == text.count(')'):
        found.append(re.match(r'\s*', text).group(0) + ';')
    hit = CONDITION.match(text)
    if hit and hit.group(2).count('(') == hit.group(2).count(')') and ';' not in hit.group(2):
        found.append(f'{hit.group(1)}(!({hit.group(2)})){hit.group(3)}')
    return [other + tail for other in dict.fromkeys(found) if other != text]


def changes_in(room):
    """(file, number of the line from 0, its other form) for all files of a room that this system compiles."""
    found = []
    for path in sorted((ROOT / 'src' / room).rglob('*.cpp')):
        if 'windows' in path.parts:
            continue
        for number, line in enumerate(path.read_text(encoding='utf-8').splitlines()):
            found += [(path, number, other) for other in changes_of(line)]
    return found


def known_equal():
    """Lines of equal.txt: file, line and other form between tabs, the reason behind them. Each line stands in its file."""
    path = HERE / 'equal.txt'
    rows = [row.split('\t') for row in path.read_text(encoding='utf-8').splitlines() if row and row[0] != '#']
    for file, old, *_ in rows:
        lines = (ROOT / file).read_text(encoding='utf-8').splitlines()
        if ' '.join(old.split()) not in (' '.join(line.split()) for line in lines):
            sys.exit(f'equal.txt: {file} has no line {old}')
    return {(file, ' '.join(old.split()), ' '.join(new.split())) for file, old, new, *_ in rows}


def run(command, seconds):
    """Exit code; None when it was still running."""
    try:
        return subprocess.run(command, cwd=ROOT, timeout=seconds, stdout=subprocess.DEVNULL,
                              stderr=subprocess.DEVNULL).returncode
    except subprocess.TimeoutExpired:
        return None


class Bench:
    def __init__(self, build):
        self.build = build
        self.patience = {}

    def command(self, test):
        if test == 'scripts':
            return ['ctest', '--test-dir', self.build, '-R', r'^scripts\.', '-E', 'limits', '--stop-on-failure', '-j2']
        return [f'{self.build}/bin/{test}', '--gtest_brief=1', '--gtest_fail_fast']

    def targets(self, tests):
        return [t for t in tests if t != 'scripts'] + (['gtdrive', 'scripts_runner'] if 'scripts' in tests else [])

    def compile(self, tests):
        return run(['cmake', '--build', self.build, '--target', *self.targets(tests)], 1800) == 0

    def ready(self, tests):
        """Builds the tests and takes their time on the unchanged tree; what they find there is no find."""
        if all(test in self.patience for test in tests):
            return
        if not self.compile(tests):
            sys.exit(f'{tests} cannot be built in {self.build}')
        for test in tests:
            start = time.monotonic()
            if run(self.command(test), 1800) != 0:
                sys.exit(f'{test} fails on the unchanged tree')
            self.patience[test] = 20 + 10 * (time.monotonic() - start)

    def outcome(self, change, tests):
        """'found', 'missed' or, where the change is no program, 'refused'."""
        path, number, other = change
        whole = path.read_bytes()
        lines = whole.decode('utf-8').split('\n')
        lines[number] = other
        try:
            path.write_text('\n'.join(lines), encoding='utf-8')
            if not self.compile(tests):
                return 'refused'
            return 'found' if any(run(self.command(t), self.patience[t]) != 0 for t in tests) else 'missed'
        finally:
            path.write_bytes(whole)


def report(counts):
    print(f'{"room":<12}{"changes":>9}{"found":>9}{"missed":>9}{"score":>9}')
    total = {'found': 0, 'missed': 0}
    for room, row in [*counts.items(), ('all', total)]:
        tried = row['found'] + row['missed']
        if tried:
            print(f'{room:<12}{tried:>9}{row["found"]:>9}{row["missed"]:>9}{row["found"] / tried:>9.1%}')
        if room != 'all':
            total['found'] += row['found']
            total['missed'] += row['missed']


def hunt(options):
    if subprocess.run(['git', 'diff', '--quiet', 'HEAD', '--', 'src'], cwd=ROOT).returncode:
        sys.exit('commit what is changed below src/ first')
    bench = Bench(options.build)
    equal = known_equal()
    waiting = []
    for room in options.rooms:
        for change in changes_in(room):
            path, number, other = change
            old = path.read_text(encoding='utf-8').splitlines()[number]
            key = (str(path.relative_to(ROOT)), ' '.join(old.split()), ' '.join(other.split()))
            if key not in equal:
                waiting.append((room, change, old))
    random.Random(options.seed).shuffle(waiting)
    counts = {room: {'found': 0, 'missed': 0, 'refused': 0} for room in options.rooms}
    end = time.monotonic() + options.minutes * 60
    try:
        for room, change, old in waiting[:options.count]:
            if time.monotonic() > end:
                break
            bench.ready(TESTS[room])
            outcome = bench.outcome(change, TESTS[room])
            counts[room][outcome] += 1
            if outcome == 'missed':
                place = f'{change[0].relative_to(ROOT)}:{change[1] + 1}'
                print(f'{place}\n  {old.strip()}\n  {change[2].strip()}', flush=True)
    finally:
        report(counts)


def self_test():
    expected = {
        '    if (altitude < 15000)': ['    if (altitude <= 15000)', '    if (altitude < 15001)'],
        '    return a + 1; // a + 2': ['    return a - 1; // a + 2', '    return a + 2; // a + 2'],
        '    std::vector<int> rows;': [],
        '// if (a < b)': [],
        '#include "a.h"': [],
        '    add("JAN");': ['    add("JAx");', '    ;'],
        '    if (a && b) stop();': ['    if (a || b) stop();', '    if (!(a && b)) stop();'],
        '    low = 0.8 * speed;': ['    low = 0.8 / speed;', '    low = 0.9 * speed;', '    ;'],
    }
    for line, others in expected.items():
        if changes_of(line) != others:
            sys.exit(f'{line}: {changes_of(line)}')
    known_equal()


def main():
    words = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    words.add_argument('--build', default='build/release', help='a build with tests')
    words.add_argument('--rooms', default=','.join(r for r in TESTS if (ROOT / 'src' / r).is_dir()),
                       type=str, help='names of rooms, parted by commas')
    words.add_argument('--count', type=int, default=400, help='changes at the most')
    words.add_argument('--minutes', type=float, default=60)
    words.add_argument('--seed', type=int, default=1, help='chooses the changes')
    words.add_argument('--list', action='store_true')
    words.add_argument('--self-test', action='store_true')
    options = words.parse_args()
    options.rooms = options.rooms.split(',')
    if options.self_test:
        self_test()
    elif options.list:
        for room in options.rooms:
            for path, number, other in changes_in(room):
                print(f'{path.relative_to(ROOT)}:{number + 1}: {other.strip()}')
    else:
        hunt(options)


if __name__ == '__main__':
    main()

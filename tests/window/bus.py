#!/usr/bin/env python3
"""bus.py PROGRAM DELIVERED_FOLDER: the program as a screen reader finds it, over the accessibility bus of a desk of its own.

Goes through every screen by what the bus offers alone. Ends with 77 and a word where the computer has no such bus."""

import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import time

SKIPPED = 77
PATIENCE = 60  # seconds
NEEDED = ('Xvfb', 'dbus-run-session')
LAUNCHERS = ('/usr/libexec/at-spi-bus-launcher', '/usr/lib/at-spi2-core/at-spi-bus-launcher')


def skip(why):
    print(f'skipped: {why}')
    sys.exit(SKIPPED)


def on_a_desk_of_its_own():
    """Runs this once more under a screen and a bus that nobody else sees."""
    for command in NEEDED:
        if shutil.which(command) is None:
            skip(f'no {command}')
    if not any(os.path.exists(path) for path in LAUNCHERS):
        skip('no accessibility bus')
    reading, writing = os.pipe()
    screen = subprocess.Popen(['Xvfb', '-displayfd', str(writing), '-screen', '0', '1280x1024x24', '-nolisten', 'tcp'],
                              pass_fds=[writing], stderr=subprocess.DEVNULL)
    os.close(writing)
    try:
        number = os.read(reading, 16).decode().strip()
        if not number:
            skip('Xvfb does not start')
        environment = dict(os.environ, GATEWISE_BUS_TEST='1', DISPLAY=f':{number}')
        return subprocess.call(['dbus-run-session', '--', sys.executable, *sys.argv], env=environment)
    finally:
        screen.terminate()
        screen.wait()


try:
    import gi
    gi.require_version('Atspi', '2.0')
    from gi.repository import Atspi, GLib
except (ImportError, ValueError) as error:
    skip(f'no reader for the bus ({error})')


def wait_for(what, condition):
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        try:
            found = condition()
        except GLib.Error:
            found = None  # the program went on while it was looked at
        if found:
            return found
        GLib.MainContext.default().iteration(False)
        time.sleep(0.02)
    raise SystemExit(f'{what}: not within {PATIENCE} seconds')


class Thing:
    """What the bus says of one object."""

    def __init__(self, raw):
        self.raw = raw

    @property
    def name(self):
        return self.raw.get_name() or ''

    @property
    def role(self):
        return self.raw.get_role_name()

    @property
    def states(self):
        return {state.value_nick for state in self.raw.get_state_set().get_states()}

    def children(self):
        found = (self.raw.get_child_at_index(i) for i in range(self.raw.get_child_count()))
        return [Thing(raw) for raw in found if raw is not None]

    def everything(self):
        yield self
        for child in self.children():
            yield from child.everything()

    def actions(self):
        return [Atspi.Action.get_action_name(self.raw, i) for i in range(self.raw.get_n_actions())]

    def do(self, action):
        """Must come back at once, whatever it brings about: a call that waits for a screen never would."""
        self.raw.do_action(self.actions().index(action))

    def press(self):
        self.do('Press')

    def related(self, kind):
        return [Thing(relation.get_target(i)) for relation in self.raw.get_relation_set()
                for i in range(relation.get_n_targets()) if relation.get_relation_type().value_nick == kind]

    def __str__(self):
        return f'{self.role} "{self.name}"'


# What a person acts upon, and so has to be told apart from the others of its screen.
KEYS = {'push button', 'check box', 'radio button', 'combo box', 'text', 'slider', 'spin button', 'tree', 'table', 'list'}
CELLS = {'table cell', 'table row header', 'table column header', 'list item'}


class Reader:
    def __init__(self, process):
        self.process = process
        self.misses = []
        self.seen = []
        self.heard = []    # what was announced
        self.renamed = []  # what told that its name has changed
        self.app = wait_for('the program on the bus', self.find_app)
        self.notices = Atspi.EventListener.new(lambda event: self.hear(event))
        self.notices.register('object:state-changed:showing')
        self.notices.register('object:property-change:accessible-name')

    def find_app(self):
        desk = Atspi.get_desktop(0)
        desk.clear_cache()
        for i in range(desk.get_child_count()):
            app = desk.get_child_at_index(i)
            if app is not None and app.get_process_id() == self.process.pid:
                return Thing(app)
        return None

    def hear(self, event):
        try:
            if event.type.startswith('object:property-change:accessible-name'):
                self.renamed.append(event.source.get_name())
            elif event.source.get_role_name() == 'notification':
                self.heard.append(event.source.get_name())
        except GLib.Error:
            pass

    def miss(self, words):
        self.misses.append(words)

    def windows(self):
        self.app.raw.clear_cache()
        return [window for window in self.app.children() if 'showing' in window.states]

    def window(self, title):
        return wait_for(f'the screen "{title}"', lambda: next(
            (w for w in self.windows() if w.name == title), None))

    def frame(self, title):
        """The main window, once it stands alone: the picture of the start before it is called alike, and is a dialog."""
        def only():
            found = [window for window in self.windows() if window.name == title]
            return found[0] if [window.role for window in found] == ['frame'] else None
        return wait_for(f'the frame "{title}" alone', only)

    def gone(self, title):
        wait_for(f'the end of "{title}"', lambda: all(w.name != title for w in self.windows()))

    def find(self, name, role=None, title=None):
        """By what it is called, in the window with that title or in any."""
        def look():
            for window in reversed(self.windows()):
                if title not in (None, window.name):
                    continue
                for thing in window.everything():
                    if thing.name == name and 'showing' in thing.states and role in (None, thing.role):
                        return thing
            return None
        return wait_for(f'"{name}"', look)

    def press(self, name, role='push button'):
        self.find(name, role).press()

    def table(self, name):
        return self.find(name, 'table')

    def type(self, name, text):
        field = self.find(name, 'text')
        if not Atspi.EditableText.set_text_contents(field.raw, text):
            self.miss(f'nothing can be typed into {field}')

    def pick(self, name, row):
        """Marks a row of a list."""
        def cells():
            return [c for c in self.find(name, 'tree').children() if c.role == 'table cell']
        wait_for(f'rows in "{name}"', cells)[row].do('Toggle')

    # -------------------------------------------------------------------------------------------- what must hold

    def look_at(self, window, role='dialog'):
        """Every rule for all that a window has now."""
        self.seen.append(window.name)
        if window.role != role:
            self.miss(f'{window} is no {role}')
        names = {}
        for thing in window.everything():
            self.look_at_one(window, thing)
            if thing.role in KEYS and 'showing' in thing.states and thing.role not in CELLS:
                if names.setdefault(thing.name, thing.role) != thing.role or list(names).count(thing.name) > 1:
                    self.miss(f'{window.name}: two are called "{thing.name}"')
                names[thing.name] = object()

    def look_at_one(self, window, thing):
        states = thing.states
        where = f'{window.name}: {thing}'
        if thing.role in ('filler', 'unknown', 'invalid', ''):
            self.miss(f'{where} has no role')
        if thing.role in KEYS | CELLS | {'label'} and not thing.name.strip() and thing.role != 'table cell':
            self.miss(f'{where} has no name')
        if 'focused' in states and 'showing' not in states:
            self.miss(f'{where} is focused and cannot be seen')
        if 'showing' in states and 'visible' not in states:
            self.miss(f'{where} is shown and not visible')
        if thing.role in ('push button', 'check box', 'radio button', 'combo box', 'text'):
            usable = {'enabled', 'focusable'} <= states
            if not usable and thing.actions() and 'Press' in thing.actions():
                self.miss(f'{where} cannot be used and offers a press')
            if usable and thing.role == 'push button' and 'Press' not in thing.actions():
                self.miss(f'{where} cannot be pressed')

    def hidden_are_hidden(self):
        """Nothing of a screen that is not up shows or has the keyboard."""
        for window in self.app.children():
            if 'showing' in window.states:
                continue
            for thing in window.everything():
                if thing.states & {'showing', 'focused'}:
                    self.miss(f'{thing} of the hidden "{window.name}" is {thing.states & {"showing", "focused"}}')


MAIN = 'Gatewise Terminal'


def visit(reader, title, open_it, close_key='Close'):
    open_it()
    reader.look_at(reader.window(title))
    reader.find(close_key, 'push button', title).press()
    reader.gone(title)
    reader.hidden_are_hidden()


def board(reader):
    window = reader.frame(MAIN)
    reader.look_at(window, 'frame')
    raw = reader.table('Flights on the board').raw
    rows, columns = Atspi.Table.get_n_rows(raw), Atspi.Table.get_n_columns(raw)
    if columns != 4 or not 0 < rows <= 20:
        reader.miss(f'the board has {columns} columns and {rows} rows')
    for row in range(rows):
        cells = [Thing(Atspi.Table.get_accessible_at(raw, row, column)) for column in range(columns)]
        if not all(cell.name for cell in cells[:3]):
            reader.miss(f'row {row} of the board is empty')
        if not cells[2].name.startswith('departure time '):
            reader.miss(f'a time of the board is called "{cells[2].name}"')
        if Thing(Atspi.Table.get_row_header(raw, row)).name != cells[0].name:
            reader.miss(f'row {row} is not headed by its flight')
    heads = [Thing(Atspi.Table.get_column_header(raw, column)).name for column in range(columns)]
    if heads != ['FLIGHT', 'DEPARTING TO', 'TIME', 'STATUS']:
        reader.miss(f'the heads of the board are {heads}')


def announcements(reader):
    header = next(t for t in reader.window(MAIN).everything() if t.name.startswith('FLIGHT INFORMATION'))
    first = header.name

    def ticked(before):
        header.raw.clear_cache()
        return header.name != before and header.name
    second = wait_for('a second of the heading', lambda: ticked(first))
    wait_for('one more second', lambda: ticked(second))
    if any(name.startswith('FLIGHT INFORMATION') for name in reader.renamed):
        reader.miss('the seconds of the heading are told')
    reader.heard.clear()
    reader.press('Next page, upper key')
    wait_for('news of the turn', lambda: any('page 2 of ' in words for words in reader.heard))
    reader.press('Previous page, upper key')
    reader.heard.clear()
    reader.press('Hour forward')
    wait_for('news of the flights', lambda: any(': ' in words for words in reader.heard))
    reader.press('Hour back')
    reader.press('Show Arrivals')
    reader.find('ARRIVING FROM', 'table column header')
    raw = reader.table('Flights on the board').raw
    time_cell = Thing(Atspi.Table.get_accessible_at(raw, 0, 2)).name
    if not time_cell.startswith('arrival time ') or time_cell[-3] != ':':
        reader.miss(f'a time of arrivals is called "{time_cell}"')


def small_screens(reader):
    visit(reader, 'Gatewise Terminal - Select', lambda: reader.press('Change Airline'))
    visit(reader, 'Gatewise Terminal - Status Board Options', lambda: reader.press('Board Options'))

    def first_row():
        raw = reader.table('Flights on the board').raw
        return Thing(Atspi.Table.get_accessible_at(raw, 0, 0))
    visit(reader, 'Gatewise Terminal - Flight Information', lambda: first_row().do('ShowMenu'))
    reader.press('Settings')
    visit(reader, 'Gatewise Terminal - Select FS2002 Path', lambda: reader.press('Browse'))
    visit(reader, 'Gatewise Terminal - Settings', lambda: None, 'Close by the title')


def notices(reader):
    """The picture of the start and the standby notice. The program is at work while they stand, and answers nobody: they
    are looked at when they have gone."""
    def found(title):
        for window in reader.app.children():
            if window.name == title and 'showing' not in window.states and window.role == 'dialog':
                return window
        return None
    for title, words in ((MAIN, 'Finding Flights, Standby...'), ('Gatewise Terminal - Standby', 'Finding Flights')):
        notice = wait_for(f'the notice "{title}"', lambda title=title: found(title))
        reader.look_at(notice)
        reader.seen[-1] += ', notice'
        names = [thing.name for thing in notice.everything() if thing.role in ('label', 'image')]
        if words not in names or len(set(names)) != len(names):
            reader.miss(f'"{title}" says {names}')
        for thing in notice.everything():
            if 'focusable' in thing.states or thing.actions():
                reader.miss(f'{thing} of "{title}" can be used')


def links(reader):
    link = reader.find('Export')
    if link.role != 'push button' or 'enabled' in link.states:
        reader.miss('a link that cannot be used does not say so')


def main_page(reader):
    reader.press('Main')
    window = reader.window(MAIN)
    reader.look_at(window, 'frame')
    for role in ('text', 'combo box'):
        for thing in window.everything():
            if thing.role == role and 'showing' in thing.states and not thing.related('labelled-by'):
                reader.miss(f'{thing} is tied to no label')
    visit(reader, 'Gatewise Terminal - Import Schedules', lambda: reader.press('Import...'))
    visit(reader, 'Gatewise Terminal - Routes', lambda: reader.press('Map'))


def flight(reader):
    """A destination by its city, a flight there, its plan, its files, its page in the log book."""
    reader.type('Search for a destination airport', 'miami')
    reader.press('Select Arrival')
    reader.look_at(reader.window('Gatewise Terminal - Select'))
    reader.pick('Airports and airlines', 0)
    reader.press('Select')
    reader.look_at(reader.window('Gatewise Terminal - Flight Dispatch'))
    reader.pick('Flights', 1)
    reader.press('Select Flight')
    reader.gone('Gatewise Terminal - Flight Dispatch')
    reader.hidden_are_hidden()
    reader.press('View Flight Plan')
    reader.look_at(reader.window('Gatewise Terminal - Flight Plan'))
    visit(reader, 'Gatewise Terminal - Profile and Map', lambda: reader.press('Profile and map'))
    reader.press('CLOSE')
    reader.gone('Gatewise Terminal - Flight Plan')
    visit(reader, 'Gatewise Terminal - Fly Options', lambda: reader.press('FLY'))


def plain_message(reader, bring_up):
    """The one screen that is called like the main window: told apart by its role."""
    def boxes():
        return [window for window in reader.windows() if window.name == MAIN and window.role == 'dialog']
    bring_up()
    box = wait_for('the plain message', boxes)[0]
    reader.look_at(box)
    reader.seen[-1] += ', plain message'
    next(thing for thing in box.everything() if thing.name == 'OK' and thing.role == 'push button').press()
    wait_for('the end of the plain message', lambda: not boxes())


def files(reader):
    reader.press('Export')
    reader.look_at(reader.window('Gatewise Terminal - Export'))
    reader.press('Other Programs...')
    reader.window('Gatewise Terminal - Other Programs')
    plain_message(reader, lambda: reader.find('Export', 'push button', 'Gatewise Terminal - Other Programs').press())
    visit(reader, 'Gatewise Terminal - Other Programs', lambda: None)
    visit(reader, 'Gatewise Terminal - Export File', lambda: reader.press('FS2000 Flight Plan'))
    reader.press('Close')
    reader.gone('Gatewise Terminal - Export')


def log_book(reader):
    reader.press('Send to Log Book')
    visit(reader, 'Gatewise Terminal - Message', lambda: None, 'OK')
    reader.press('LogBook')
    raw = reader.table('Flights on this page of the log book').raw
    if Atspi.Table.get_n_rows(raw) != 1:
        reader.miss(f'the log book has {Atspi.Table.get_n_rows(raw)} lines for one flight')
    heads = [Thing(Atspi.Table.get_column_header(raw, column)).name
             for column in range(Atspi.Table.get_n_columns(raw))]
    if heads != ['Line', 'Departure', 'Arrival', 'Remarks', 'Instrument hours', 'Pilot in command hours']:
        reader.miss(f'the heads of the log book are {heads}')
    window = reader.window(MAIN)
    reader.look_at(window, 'frame')
    totals = [thing.name for thing in window.everything() if thing.name.startswith('Totals to date, ')]
    if len(totals) != 2:
        reader.miss(f'the totals are called {totals}')
    visit(reader, 'Gatewise Terminal - Career', lambda: reader.press('Career'))
    reader.press('Line 1', 'table row header')
    reader.press('Edit Entry')
    reader.look_at(reader.window('Gatewise Terminal - Log Book Entry'))
    actual = next(t.name for t in reader.window('Gatewise Terminal - Log Book Entry').everything()
                  if t.name.startswith('Actual departure'))
    visit(reader, 'Gatewise Terminal - Set Time', lambda: reader.press(actual), 'RETURN')
    reader.press('Close by the title')
    reader.gone('Gatewise Terminal - Log Book Entry')
    reader.hidden_are_hidden()


def inside():
    program, delivered = (pathlib.Path(name).resolve() for name in sys.argv[1:])
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        place = folder / 'bin' / program.name
        place.parent.mkdir()
        shutil.copy2(program, place)
        shared = folder / 'share' / 'gatewise'
        shared.mkdir(parents=True)
        for part in ('Fonts', 'Images', 'Wavs', 'Data', 'help', 'GT.cfg'):
            if (delivered / part).exists():
                (shared / part).symlink_to(delivered / part)
        environment = dict(os.environ, QT_QPA_PLATFORM='xcb', QT_LINUX_ACCESSIBILITY_ALWAYS_ON='1',
                           ALSOFT_DRIVERS='null', HOME=name, XDG_DATA_HOME=f'{name}/user',
                           XDG_CONFIG_HOME=f'{name}/config', QT_SCALE_FACTOR='1')
        # The bus is up before the program looks for it: a program that finds none does not ask again.
        Atspi.init()
        Atspi.get_desktop(0).get_child_count()
        process = subprocess.Popen([place], env=environment)
        try:
            reader = Reader(process)
            for step in STEPS:
                step(reader)
        finally:
            process.kill()
            process.wait()
    for miss in reader.misses:
        print(miss)
    print(f'{len(set(reader.seen))} screens over the bus')
    return 1 if reader.misses else 0


STEPS = (board, announcements, notices, small_screens, links, main_page, flight, files, log_book)

if __name__ == '__main__':
    sys.exit(inside() if os.environ.get('GATEWISE_BUS_TEST') else on_a_desk_of_its_own())

"""The help pages: what stands in assets/help is the text of a page; head, menu and foot are the same on all of them."""
import os

import templates

TEXTS = os.path.join(templates.ASSETS, 'help')
FRAME = 'frame.html'

# File, word in the menu, title of the page; in the order of the menu.
PAGES = (
    ('gt_gt.htm', 'Start', ''),
    ('first.htm', 'First steps', 'First steps'),
    ('boards.htm', 'Boards', 'The status board'),
    ('pass.htm', 'Boarding pass', 'The boarding pass'),
    ('plan.htm', 'Flight plan', 'The flight plan'),
    ('maps.htm', 'Maps', 'Maps'),
    ('exports.htm', 'Exports', 'Exports'),
    ('flying.htm', 'Flying', 'Flying'),
    ('logbook.htm', 'Log book', 'The log book'),
    ('career.htm', 'Career', 'Your career'),
    ('settings.htm', 'Settings', 'Settings'),
    ('keyboard.htm', 'Keyboard', 'Keyboard'),
    ('shortcuts.htm', 'Short cuts', 'Short cuts'),
)


def read(name):
    with open(os.path.join(TEXTS, name), encoding='utf-8') as file:
        return file.read()


def page(name):
    """The whole page of a file in the table."""
    title = next(title for file, _, title in PAGES if file == name)
    current = ' aria-current="page"'
    menu = '\n'.join(f'    <a href="{file}"{current if file == name else ""}>{word}</a>' for file, word, _ in PAGES)
    return (read(FRAME).replace('@TITLE@', title + ' - Gatewise Terminal' if title else 'Gatewise Terminal')
            .replace('@MENU@', menu).replace('@TEXT@', read(name).rstrip('\n')))

"""Holds the documents against the code.

    documents.py driver GTDRIVE PROJECT   docs/gtdrive.md names the driver's commands, functions and properties, and no others
    documents.py paths PROJECT            the files and folders that the documents name are there: `src/plan/Build.h`,
                                          `plan/Build` or `Build.h` of the room `plan`
    documents.py --self-test
"""

import json
import pathlib
import re
import subprocess
import sys
import tempfile

SPAN = re.compile(r'`([^`\n]+)`')
PATH = re.compile(r'(?:src|tools|tests|docs|data|assets|bench|cmake|\.ci)/[\w./-]+')
PLACEHOLDER = re.compile('NAME|PLAN|SUBJECT|FORM')
OF_ROOM = re.compile(r'`([^`\n]+)`\s+of\s+the\s+room\s+`(\w+)`')
IN_ROOM = re.compile(r'(\w+)/[\w.]+')


def differences(what, code, document):
    return [f'{what} not in the document: {name}' for name in sorted(code - document)] + \
           [f'{what} that the code does not have: {name}' for name in sorted(document - code)]


def commands_of(driver):
    with tempfile.TemporaryDirectory() as folder:
        answer = subprocess.run([driver, folder], input='help\nquit\n', capture_output=True, text=True, check=True).stdout
    lines = [json.loads(line) for line in answer.splitlines() if line.startswith('"')]
    return {line.split(': ', 1)[0] for line in lines}


def commands_in(text):
    """First cells of the tables, the command in backticks."""
    rows = re.findall(r'^\| `((?:[^`|]|\\\|)+)` \|', text, re.MULTILINE)
    return {row.replace('\\|', '|') for row in rows}


def section(text, start, end):
    return text[text.index(start):].split(end)[0]


def driver_faults(driver, project):
    text = (project / 'docs/gtdrive.md').read_text(encoding='utf-8')
    tables = text[text.index('## The simulated machine'):]
    found = differences('command', commands_of(driver), commands_in(tables))

    calls = set(re.findall(r'\{"(\w+)", Call<', (project / 'tools/drive/Calls.cpp').read_text(encoding='utf-8')))
    named = {span.split()[0] for span in SPAN.findall(section(text, 'Functions of `call`', '\n\n')[len('Functions of `call`'):])}
    found += differences('function', calls, named)

    source = (project / 'tools/drive/Properties.cpp').read_text(encoding='utf-8')
    properties = set(re.findall(r'\{"(\w+)", (?:field|screenField|itemText|row\w+|interval|mark)\b', source)) | {'enabled'}
    named = set(SPAN.findall(section(text, '| kind | properties |', '\n\n')))
    return found + differences('property', properties, named)


def is_there(project, path):
    """A file or folder, or the module of a room without its ending."""
    return any((project / (path + ending)).exists() for ending in ('', '.h', '.cpp'))


def path_faults(project):
    rooms = {folder.name for folder in project.glob('src/*') if folder.is_dir()}
    found = []
    for document in [*project.glob('*.md'), *project.glob('docs/**/*.md')]:
        text = document.read_text(encoding='utf-8')
        spans = [span for span in SPAN.findall(text) if not PLACEHOLDER.search(span)]
        paths = [span for span in spans if PATH.fullmatch(span)]
        paths += [f'src/{span}' for span in spans if (match := IN_ROOM.fullmatch(span)) and match[1] in rooms]
        paths += [f'src/{room}/{name}' for name, room in OF_ROOM.findall(text)]
        found += [f'{document.relative_to(project)}: there is no {path}' for path in paths if not is_there(project, path)]
    return found


def self_test():
    text = '| `get C [PROPERTY]` | shows |\n| `simulator running\\|absent` | says |\n| plain | row |\n'
    if commands_in(text) != {'get C [PROPERTY]', 'simulator running|absent'}:
        sys.exit(f'commands: {commands_in(text)}')
    if len(differences('word', {'a', 'b'}, {'b', 'c'})) != 2:
        sys.exit('a difference is not seen')
    with tempfile.TemporaryDirectory() as folder:
        project = pathlib.Path(folder)
        (project / 'docs').mkdir()
        (project / 'src/plan').mkdir(parents=True)
        (project / 'src/plan/Build.h').touch()
        (project / 'docs/a.md').write_text(
            '`docs/a.md` `docs/none.md` `word` `plan/Build` `plan/Gone` `no/room` `src/plan/NAME.h`\n'
            '`Build.h` of the\nroom `plan`, `Lost.cpp` of the room `plan`, `A.cpp` of the room `hall`')
        missing = ['docs/none.md', 'src/plan/Gone', 'src/plan/Lost.cpp', 'src/hall/A.cpp']
        if path_faults(project) != [f'docs/a.md: there is no {path}' for path in missing]:
            sys.exit(f'paths: {path_faults(project)}')


if __name__ == '__main__':
    if sys.argv[1:] == ['--self-test']:
        self_test()
        sys.exit(0)
    wrong = driver_faults(sys.argv[2], pathlib.Path(sys.argv[3])) if sys.argv[1] == 'driver' \
        else path_faults(pathlib.Path(sys.argv[2]))
    sys.exit('\n'.join(wrong) if wrong else 0)

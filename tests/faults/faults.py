#!/usr/bin/env python3
"""Lets every file call of a road fail in turn and looks at the user's files afterwards.

    faults.py SHIM GTDRIVE GT1 PROGRAM_FOLDER DATA_TABLES [--points N] [--jobs N]

The roads are a flight sent to the simulator, log book entries, settings, exports, a log book's import and a change of the
data set (road.txt), the compilation of a data set over an old one, and the import of public tables into a program
folder. Each call of these roads that reaches the user's files is a point for
each way in which it can fail. After each run every file must be old or new, and whole, and no run may hang. With
--points only so many points are tried, always the same ones, spread over all of them."""

import argparse
import concurrent.futures
import errno
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile

HERE = pathlib.Path(__file__).resolve().parent
RECORD = 347  # bytes of a log book entry
TAIL = '[zz]\r\ntail=kept\r\n'  # behind all that the program changes in a file of sections and keys
FMC_PLAN = 'EGLL*LFPG\t 0 \t***\t***\t***\t***\r\n'  # of another flight
OTHER_LOG = ('Date,AircraftID,From,To,TimeOut,TimeIn,TotalTime,Night,PilotComments\n'
             '2002-06-15,738,ATL,JFK,0740,0955,2.3,0.5,smooth\n')
PATIENCE = 60  # seconds

# The ways in which each call fails; 0 is a read or write that is cut short.
WAYS = {
    'open': [errno.EIO, errno.EACCES], 'open64': [errno.EIO, errno.EACCES],
    'fopen': [errno.EIO], 'fopen64': [errno.EIO], 'opendir': [errno.EIO],
    'stat': [errno.EIO], 'lstat': [errno.EIO], 'fstat': [errno.EIO], 'access': [errno.EACCES],
    'read': [errno.EIO, 0], 'pread': [errno.EIO, 0], 'pread64': [errno.EIO, 0],
    'write': [errno.ENOSPC, errno.EIO, 0], 'writev': [errno.ENOSPC, 0],
    'fsync': [errno.EIO], 'close': [errno.EIO], 'fchmod': [errno.EPERM],
    'rename': [errno.EACCES, errno.EIO], 'unlink': [errno.EACCES], 'remove': [errno.EACCES],
    'mkdir': [errno.ENOSPC], 'readlink': [errno.EIO],
}


class Road:
    """One command over files of its own; what it may leave behind."""

    def __init__(self, arguments):
        self.arguments = arguments

    def run(self, folder, at=None, error=0, log=None):
        environment = dict(os.environ, LD_PRELOAD=str(self.arguments.shim), FAULT_FOLDER=str(folder))
        if at is not None:
            environment.update(FAULT_AT=str(at), FAULT_ERROR=str(error))
        if log is not None:
            environment['FAULT_LOG'] = str(log)
        return subprocess.run(self.command(folder), input=self.text(folder), env=environment, timeout=PATIENCE,
                              stdout=subprocess.PIPE, stderr=subprocess.PIPE, check=False)

    def text(self, folder):
        return b''

    @staticmethod
    def left(folder):
        return files_of(folder)


    def finish(self, data_set):
        """Whatever was cut short in a set is finished by the next run that reads it."""
        with tempfile.TemporaryDirectory() as tables:
            subprocess.run([self.arguments.gt1, 'dump', data_set, tables], timeout=PATIENCE,
                           stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=False)


class Flight(Road):
    name = 'flight'
    # The plans for today's programs, and what stands in the last line of a whole one.
    PLANS = {'Copperline Airways Flight 1121 ATL to DFW.fms': b' ADES ',
             'Copperline Airways Flight 1121 ATL to DFW.fpl': b'</flight-plan>'}

    def prepare(self, folder):
        shutil.copytree(self.arguments.program, folder, symlinks=True)
        simulator = folder / 'FS'
        for part in ('flights/fs2kflts', 'flights/myflts', 'Modules/FSNavigator/Plan', 'Aircraft/b737/panel'):
            (simulator / part).mkdir(parents=True)
        write(simulator / 'fs2002.cfg', '[UserInterface]\r\nPageID=1\r\nSITUATION=mine\r\n' + TAIL)
        write(simulator / 'Aircraft/b737/aircraft.cfg', '[fltsim.0]\r\ntitle=Boeing 737-400\r\n')
        write(simulator / 'FMSplans.fmc', FMC_PLAN)
        (folder / 'Data/LogBook.gt1').write_bytes(b''.join(self.records()))
        config = (folder / 'GT.cfg').read_text().replace('\r\n', '\n')
        lines = [line for line in config.split('\n')
                 if not line.startswith(('FSPath', 'PathVerified', 'StatusBoard'))]
        lines.insert(lines.index('[Main]') + 1, f'FSPath={simulator}\nPathVerified=1\nStatusBoard=0')
        write(folder / 'GT.cfg', '\r\n'.join('\n'.join(lines).strip('\n').split('\n')) + '\r\n' + TAIL)
        (folder / 'plans').mkdir()
        for name in self.PLANS:
            write(folder / 'plans' / name, 'an older plan\n')
        write(folder / 'app.csv', OTHER_LOG)
        template = folder / 'Data/default.FLT'
        write(template, template.read_bytes().decode('latin-1').rstrip('\r\n') + '\r\n' + TAIL)

    @staticmethod
    def records():
        return [f'record {i}'.encode().ljust(RECORD, b'.') for i in range(3)]

    def command(self, folder):
        return [self.arguments.gtdrive, folder]

    def text(self, folder):
        return (HERE / 'road.txt').read_bytes().replace(b'$APP', bytes(folder))

    def complaints(self, folder, before):
        for name, old in before.items():
            path = folder / name
            if not path.exists():
                yield f'{name} is gone'
            elif path.suffix == '.gt1' and path.name != 'LogBook.gt1' and path.read_bytes() != old:
                yield f'{name} has changed'
        for name in ('GT.cfg', 'FS/fs2002.cfg', 'Data/default.FLT'):
            yield from sections(folder / name, before[name].decode('latin-1'))
        for path in (folder / 'FS/flights/fs2kflts').glob('*.FLT'):
            yield from sections(path, before['Data/default.FLT'].decode('latin-1'))
        for path in (folder / 'FS/flights/myflts').glob('*.pln'):
            if not path.read_bytes().endswith(b'\r\n') or b'destination_id' not in path.read_bytes():
                yield f'{path.name} is half a plan'
        if FMC_PLAN.encode() not in (folder / 'FS/FMSplans.fmc').read_bytes():
            yield 'FMSplans.fmc has lost a plan'
        for name, end in self.PLANS.items():
            plan = (folder / 'plans' / name).read_bytes()
            if plan != b'an older plan\n' and not (plan.endswith(b'\n') and end in plan.split(b'\n')[-2]):
                yield f'{name} is half a plan'
        yield from self.log_book(folder)

    def log_book(self, folder):
        for name in ('LogBook.gt1', 'LogBook.bak', 'LogBook.new'):
            path = folder / 'Data' / name
            if path.exists() and len(path.read_bytes()) % RECORD != 0:
                yield f'{name} has half a record'
        entries = (folder / 'Data/LogBook.gt1').read_bytes() if (folder / 'Data/LogBook.gt1').exists() else b''
        # The first one may have been deleted, as the pilot asked; the second was saved with other comments.
        for record in self.records()[1:]:
            if record[:150] not in entries:
                yield 'the log book has lost a flight'


class DataSet(Road):
    name = 'data set'

    def prepare(self, folder):
        folder.mkdir()
        shutil.copytree(self.arguments.program / 'Data/Pacific Islands', folder / 'set')
        write(folder / 'set/LogBook.gt1', 'not a table')

    def command(self, folder):
        return [self.arguments.gt1, 'compile', self.arguments.tables, folder / 'set']

    def complaints(self, folder, before):
        self.finish(folder / 'set')
        now = self.left(folder)
        old = {name.removeprefix('set/'): text for name, text in before.items()}
        if now not in (old, self.after):
            yield f'the set is neither the old nor the new one: {sorted(now)}'

    @staticmethod
    def left(folder):
        return {path.name: path.read_bytes() for path in (folder / 'set').glob('*.gt1')}


class Import(Road):
    """Public tables become a further set; the tables that all sets share grow."""
    name = 'import'
    TABLES = {
        'airports.dat': '1,"Alpha Field","Alphaville","Freedonia","AAA","KAAA",40.0,-100.0,1000,-6,"A","America/Chicago"\n'
                        '2,"Bravo Field","Bravo","Freedonia","BBB","KBBB",41.5,-92.5,800,-6,"A","America/Chicago"\n',
        'airlines.dat': '10,"Orrery Air",\\N,"X0","ORR","ORRERY","Freedonia","Y"\n',
        'flown.csv': '2002,6,3,1,1956,1955,2050,2055,X0,34,N1,54,60,45,-5,1,AAA,BBB,251,2,7,0,A,0,NA,NA,NA,NA,NA\n'
                     '2002,6,10,1,1956,1955,2050,2055,X0,34,N1,54,60,45,-5,1,AAA,BBB,251,2,7,0,A,0,NA,NA,NA,NA,NA\n',
        'nav.dat': 'I\n810 Version - data cycle 2009.12, build 20091080, metadata NavXP810.\n\n'
                   '2  41.40000000 -092.50000000      0   341  50    0.0 QBR  BRAVO NDB\n'
                   '3  40.00000000 -100.00000000   1000 11230 130    5.0 QAL  ALPHA VORTAC\n99\n',
        'fix.dat': 'I\n600 Version - data cycle 2009.12, build 20091080, metadata FixXP700.\n\n'
                   ' 40.200000 -098.000000 QFIXA\n 40.800000 -096.000000 QFIXB\n99\n',
        'awy.dat': 'I\n640 Version - data cycle 2009.12, build 20091080, metadata AwyXP700.\n\n'
                   'QAL    40.000000 -100.000000 QFIXA  40.200000 -098.000000 2 180 450 J9\n'
                   'QFIXA  40.200000 -098.000000 QFIXB  40.800000 -096.000000 2 180 450 J9\n99\n',
    }

    def prepare(self, folder):
        shutil.copytree(self.arguments.program / 'Data', folder / 'Data', symlinks=True)
        sources = self.sources(folder)
        sources.mkdir(exist_ok=True)
        for name, text in self.TABLES.items():
            write(sources / name, text)

    @staticmethod
    def sources(folder):
        return folder.parent / f'tables-{folder.name}'  # reading them is no call on the user's files

    def command(self, folder):
        return [self.arguments.gt1, 'import', self.sources(folder), '--into', folder, '--name', 'Made']

    def complaints(self, folder, before):
        self.finish(folder / 'Data/Made')
        shutil.rmtree(self.sources(folder))
        now = files_of(folder)
        made = {name for name in now if name.startswith('Data/Made/')}
        if made and {name: now[name] for name in made} != {
                name: text for name, text in self.after.items() if name.startswith('Data/Made/')}:
            yield f'the new set is not whole: {sorted(made)}'
        for name, old in before.items():
            if now.get(name) not in (old, self.after[name]):
                yield f'{name} is neither the old nor the new one'
            elif made and now[name] != self.after[name]:
                yield f'the new set stands beside an old {name}'


def write(path, text):
    path.write_bytes(text.encode('latin-1'))


def keys_of(text):
    out, section = set(), ''
    for line in text.replace('\r\n', '\n').split('\n'):
        if line.startswith('['):
            section = line.strip().lower()
        elif '=' in line:
            out.add((section, line.split('=')[0].strip().lower()))
    return out


def sections(path, before):
    text = path.read_bytes().decode('latin-1') if path.exists() else ''
    lost = keys_of(before) - keys_of(text)
    if lost or TAIL not in text or not text.endswith('\r\n'):
        yield f'{path.name} has lost {sorted(lost)[:3] or "its end"}'


def files_of(folder):
    return {str(path.relative_to(folder)): path.read_bytes() for path in sorted(folder.rglob('*')) if path.is_file()}


def points_of(road, scratch):
    folder, log = scratch / 'clean', scratch / 'calls'
    road.prepare(folder)
    result = road.run(folder, log=log)
    road.after = road.left(folder)
    calls = log.read_text().split()
    if result.returncode != 0 or not calls:
        sys.exit(f'{road.name}: the road itself fails: {result.stderr.decode()[-500:]}')
    shutil.rmtree(folder)
    return [(road, at + 1, call, error) for at, call in enumerate(calls) for error in WAYS[call]]


def attempt(point, scratch):
    road, at, call, error = point
    label = f'{road.name}: call {at} ({call}) fails with {os.strerror(error) if error else "half of it"}'
    folder = scratch / f'run-{road.name.replace(" ", "-")}-{at}-{error}'
    road.prepare(folder)
    before = files_of(folder)
    try:
        result = road.run(folder, at, error)
        found = [] if result.returncode in (0, 1) else [f'it ends with {result.returncode}']
        found += road.complaints(folder, before)
    except subprocess.TimeoutExpired:
        found = ['it hangs']
    shutil.rmtree(folder)
    return [f'{label}: {complaint}' for complaint in found]


def main():
    parser = argparse.ArgumentParser(description=__doc__.split('\n')[0])
    for name in ('shim', 'gtdrive', 'gt1', 'program', 'tables'):
        parser.add_argument(name, type=pathlib.Path)
    parser.add_argument('--points', type=int, default=0)
    parser.add_argument('--jobs', type=int, default=os.cpu_count())
    arguments = parser.parse_args()
    memory = '/dev/shm' if os.access('/dev/shm', os.W_OK) else None
    with tempfile.TemporaryDirectory(dir=memory) as name:
        scratch = pathlib.Path(name)
        points = [point for kind in (Flight, DataSet, Import) for point in points_of(kind(arguments), scratch_of(scratch, kind))]
        every = len(points)
        if arguments.points and arguments.points < every:
            points = [points[i * every // arguments.points] for i in range(arguments.points)]
        with concurrent.futures.ThreadPoolExecutor(arguments.jobs) as pool:
            found = [line for lines in pool.map(lambda point: attempt(point, scratch), points) for line in lines]
    print('\n'.join(found))
    print(f'{len(points)} of {every} points, {len(found)} complaints')
    sys.exit(1 if found else 0)


def scratch_of(scratch, kind):
    folder = scratch / kind.__name__
    folder.mkdir()
    return folder


if __name__ == '__main__':
    main()

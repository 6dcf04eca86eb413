#!/usr/bin/env python3
# Holds the tree against the rules of the house: arrows between rooms, headers that stand alone, the list of Windows functions, formatting.
"""Usage: tools/check.py [--write | --arrows]   (--write renews platform/winapi.list, --arrows prints which folder includes which)"""
import concurrent.futures
import os
import re
import subprocess
import sys
import textwrap

# Who may include whom; a room may always include itself. Tests and tools see everything, of the stand-in PC its second face.
ARROWS = {
    'base': set(),
    'platform': {'base'},
    'toolkit': {'base'},
    'host': {'base'},
    'controls': {'host', 'base'},
    'helpers': {'base'},
    'app': {'helpers', 'toolkit', 'controls', 'host', 'base'},
}
# Inside a room: the folders below each one; it may include those, and what they may include. A folder stands after all that are below it, so
# that no circle can be written down. The file that makes the controls known to a factory is a folder of its own here: it names them all.
CONTROLS = ['CheckBox', 'CommandButton', 'Frame', 'TextBox']
FOLDERS = {
    'controls': [],
    **{f'controls/{name}': ['controls'] for name in CONTROLS},
    'controls/RegisterControls': [f'controls/{name}' for name in CONTROLS],
    # The stand-in PC. Everything up to windows only keeps state; from messages on, windows hear of what happens.
    **{f'platform/src/{area}': [f'platform/src/{lower}' for lower in below] for area, below in {
        'core': [],
        'text': ['core'],
        'memory': ['core'],
        'machine': ['core'],
        'user': ['text', 'memory', 'machine'],
        'registry': ['user'],
        'file': ['user'],
        'path': ['file'],
        'profile': ['file'],
        'gdi': ['core'],
        'window': ['gdi', 'text'],
        'message': ['window'],
        'input': ['message'],
        'behaviour': ['input'],
        'process': ['behaviour', 'file'],
        'service': ['process'],
        'module': ['process'],
        'theme': ['module', 'behaviour'],
        'classes': ['theme'],
        'shell': ['window', 'memory'],
        'ole': ['input', 'shell'],
    }.items()},
}
# What the tests' hands do stands on top of all areas.
FOLDERS['platform/sim'] = [folder for folder in FOLDERS if folder.startswith('platform/src/')]
CODE = ('.h', '.cpp')
# What is compiled for Windows alone, beside `*.win.cpp`: it meets the real headers, so that the stand-in PC owes it nothing.
WINDOWS_ONLY = ('tests/e2e/', 'tests/helper/', 'tools/agent/', 'tools/bench/start/', 'tools/gallery/Live', 'tools/gallery/Poses')
# Pages whose C++ blocks are lines of a test program.
EXAMPLES = {'docs/toolkit.md': 'tests/toolkit/Examples.cpp'}
UNFINISHED = re.compile(r'\b(' + '|'.join(['TO' + 'DO', 'FIX' + 'ME', 'X' + 'XX', 'HA' + 'CK']) + r')\b')


def tracked_files():
    listed = subprocess.run(['git', 'ls-files', '-co', '--exclude-standard'], capture_output=True, text=True, check=True).stdout
    return sorted(path for path in listed.splitlines() if os.path.isfile(path))


def room_of(path):
    if path.startswith('app/helpers/'):
        return 'helpers'
    return path.split('/')[0] if '/' in path else None


def read(path):
    with open(path, encoding='utf-8') as file:
        return file.read()


def check_arrows(files):
    for path in files:
        room = room_of(path)
        if not path.endswith(CODE) or room not in ARROWS:
            continue
        for number, line in enumerate(read(path).splitlines(), 1):
            match = re.match(r'\s*#\s*include\s+"([^"]+/[^"]+)"', line)
            if match and os.path.isfile(match[1]):
                target = room_of(match[1])
                if target != room and target not in ARROWS[room]:
                    yield f'{path}:{number}: the room {room} may not see {target}'


def check_second_face(files):
    for path in files:
        if path.startswith(('tests/', 'tools/')) and path.endswith(CODE) and '#include "platform/src/' in read(path):
            yield f'{path}: sees more of the stand-in PC than platform/sim'


def folder_of(path, files):
    """The entry of FOLDERS that a file belongs to. A header of platform/sim is part of the area that implements it, or plain data for all."""
    name = path.rsplit('.', 1)[0]
    if path.startswith('platform/sim/') and path.endswith('.h'):
        sources = sorted(file for file in files if file.startswith('platform/') and file.endswith(f'/{os.path.basename(name)}.cpp'))
        name = next((file for file in sources if '/src/' in file), name if sources else 'platform/src/core/')
    inside = [folder for folder in FOLDERS if name == folder or name.startswith(folder + '/')]
    return max(inside, key=len, default=None)


def folder_arrows(files):
    """Every include between two folders of one room, as (including file, line, its folder, the folder of the header)."""
    folders = {path: folder_of(path, files) for path in files if path.endswith(CODE)}
    for path, folder in folders.items():
        for number, line in enumerate(read(path).splitlines() if folder else [], 1):
            match = re.match(r'\s*#\s*include\s+"([^"]+/[^"]+)"', line)
            target = folders.get(match[1]) if match else None
            if target and target != folder and room_of(match[1]) == room_of(path):
                yield path, number, folder, target


def check_folders(files):
    below = {}
    for folder, direct in FOLDERS.items():
        for lower in direct:
            if lower not in below:
                yield f'tools/check.py: {folder} stands before {lower}, which it may include: the folders go in a circle'
        below[folder] = set(direct).union(*(below.get(lower, set()) for lower in direct))
    for path in files:
        if path.startswith(('platform/src/', 'platform/sim/')) and path.endswith(CODE) and not folder_of(path, files):
            yield f'{path}: in no folder that tools/check.py knows'
    for path, number, folder, target in folder_arrows(files):
        if target not in below[folder]:
            yield f'{path}:{number}: {folder} may not include {target}'


def print_folder_arrows(files):
    arrows = {}
    for _, _, folder, target in folder_arrows(files):
        arrows.setdefault(folder, set()).add(target)
    for folder in FOLDERS:
        if folder in arrows:
            print(f'{folder:26} -> {" ".join(os.path.basename(target) for target in FOLDERS if target in arrows[folder])}')


def check_first_lines_and_marks(files):
    for path in files:
        if not path.endswith(CODE):
            continue
        text = read(path)
        if path.endswith('.h') and '#pragma once' not in text:
            yield f'{path}: no #pragma once'
        for number, line in enumerate(text.splitlines(), 1):
            if UNFINISHED.search(line):
                yield f'{path}:{number}: an unfinished mark'
            if '#if' in line and '_WIN32' in line:
                yield f'{path}:{number}: the program is one set of sources; the platform is chosen by the include path'


def check_headers_alone(files):
    headers = [path for path in files if path.endswith('.h') and room_of(path) in ARROWS | {'tests': 0} and native(path)]

    def compile_alone(path):
        command = ['g++', '-std=c++20', '-fsyntax-only', '-x', 'c++', '-Wall', '-Wextra', '-I.', '-Iplatform/include', '-include', path, '/dev/null']
        result = subprocess.run(command, capture_output=True, text=True)
        return f'{path}: does not compile on its own\n{result.stderr.strip()[:400]}' if result.returncode else None

    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        yield from filter(None, pool.map(compile_alone, headers))


def windows_functions(files):
    """Every function that platform/include declares, with its area and the rooms that name it."""
    declared = set()
    for path in files:
        if path.startswith('platform/include/'):
            declared |= set(re.findall(r'\bWINAPIV?\s+(\w+)\s*\(', read(path)))
    areas, callers = {}, {name: set() for name in declared}
    for path in files:
        if not path.endswith(CODE):
            continue
        text = read(path)
        if path.startswith('platform/src/'):
            for name in re.findall(r'\bWINAPIV?\s+(\w+)\s*\(', text):
                areas[name] = path.split('/')[2]
        elif not path.startswith('platform/') and native(path):
            for name in words(text) & declared:
                callers[name].add(room_of(path))
    return {name: (areas.get(name), sorted(callers[name])) for name in sorted(declared)}


def native(path):
    """Whether a source file is part of a natively built program."""
    return path.endswith(CODE) and not path.endswith('.win.cpp') and not path.startswith(WINDOWS_ONLY)


def words(text):
    return set(re.findall(r'\w+', re.sub(r'//.*', '', text)))


def check_macros(files):
    """A macro of platform/include has a user outside it: itself, or through a declaration or another macro there."""
    macros, used = {}, set()
    for path in files:
        if path.startswith('platform/include/'):
            for number, line in enumerate(re.sub(r'\\\n', ' ', read(path)).splitlines(), 1):
                match = re.match(r'\s*#\s*define\s+(\w+)(.*)', line)
                if match:
                    macros[match[1]] = (path, number, words(match[2]))
                else:
                    used |= words(line)
        elif native(path):
            used |= words(read(path))
    waiting = used & macros.keys()
    while waiting:
        waiting = {name for macro in waiting for name in macros[macro][2]} & macros.keys() - used
        used |= waiting
    for name, (path, number, _) in macros.items():
        if name not in used:
            yield f'{path}:{number}: nobody outside platform/include names {name}'


def check_messages(files):
    """A message that the stand-in PC handles has a sender: a room, a test or another file of the stand-in PC names it."""
    handled, named = {}, {}
    for path in files:
        if not native(path) or path.startswith('platform/include/'):
            continue
        text = read(path)
        for name in words(text):
            named.setdefault(name, set()).add(path)
        if path.startswith('platform/src/'):
            for name in re.findall(r'\bcase ((?:WM|BM|EM|CB|TTM|STM|LB)_\w+):', text):
                handled.setdefault(name, set()).add(path)
    for name, places in sorted(handled.items()):
        if not named[name] - places:
            yield f'{min(places)}: handles {name}, which nobody else names'


def check_functions(files, write):
    functions = windows_functions(files)
    for name, (area, rooms) in functions.items():
        if area is None:
            yield f'platform/include: {name} is declared and not implemented'
        if not rooms:
            yield f'platform: {name} is offered and nobody outside the stand-in PC calls it'
    lines = [f'{name:32} {area or "-":10} {" ".join(rooms)}'.rstrip() for name, (area, rooms) in functions.items()]
    text = '# Every Windows function that the stand-in PC offers: name, area, the rooms that call it. `tools/check.py --write` renews it.\n'
    text += '\n'.join(lines) + '\n'
    if write:
        with open('platform/winapi.list', 'w', encoding='utf-8') as file:
            file.write(text)
    elif not os.path.isfile('platform/winapi.list') or read('platform/winapi.list') != text:
        yield 'platform/winapi.list does not match the code: run tools/check.py --write'


def check_examples():
    for page, source in EXAMPLES.items():
        code = read(source)
        for block in re.findall(r'```cpp\n(.*?)```', read(page), re.S):
            if textwrap.indent(block, '    ') not in code:
                yield f'{page}: not in {source} as it stands: {block.splitlines()[0]} ...'


def check_format(files):
    code = [path for path in files if path.endswith(CODE)]
    result = subprocess.run(['clang-format', '--dry-run', *code], capture_output=True, text=True)
    yield from sorted({line.split(': ')[0].rsplit(':', 2)[0] + ': not formatted (clang-format -i)'
                       for line in result.stderr.splitlines() if 'warning:' in line})


def main():
    os.chdir(subprocess.run(['git', 'rev-parse', '--show-toplevel'], capture_output=True, text=True, check=True).stdout.strip())
    files = tracked_files()
    if '--arrows' in sys.argv[1:]:
        return print_folder_arrows(files)
    problems = [*check_arrows(files), *check_second_face(files), *check_folders(files), *check_first_lines_and_marks(files),
                *check_macros(files), *check_messages(files), *check_functions(files, '--write' in sys.argv[1:]),
                *check_examples(), *check_format(files), *check_headers_alone(files)]
    for problem in problems:
        print(problem)
    print(f'check: {len(problems)} problems in {len(files)} files')
    return 1 if problems else 0


if __name__ == '__main__':
    sys.exit(main())

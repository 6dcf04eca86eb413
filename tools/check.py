#!/usr/bin/env python3
# Holds the tree against the rules of the house: arrows between rooms, headers that stand alone, the list of Windows functions, formatting.
"""Usage: tools/check.py [--write]   (--write renews platform/winapi.list)"""
import concurrent.futures
import os
import re
import subprocess
import sys
import textwrap

# Who may include whom; a room may always include itself. Tests and tools see everything.
ARROWS = {
    'base': set(),
    'platform': {'base'},
    'toolkit': {'base'},
    'host': {'base'},
    'controls': {'host', 'base'},
    'helpers': {'base'},
    'app': {'helpers', 'toolkit', 'controls', 'host', 'base'},
}
CODE = ('.h', '.cpp')
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
    headers = [path for path in files if path.endswith('.h') and room_of(path) in ARROWS | {'tests': 0}]

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
        elif not path.startswith('platform/'):
            for name in set(re.findall(r'\w+', text)) & declared:
                callers[name].add(room_of(path))
    return {name: (areas.get(name), sorted(callers[name])) for name in sorted(declared)}


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
    problems = [*check_arrows(files), *check_first_lines_and_marks(files), *check_functions(files, '--write' in sys.argv[1:]),
                *check_examples(), *check_format(files), *check_headers_alone(files)]
    for problem in problems:
        print(problem)
    print(f'check: {len(problems)} problems in {len(files)} files')
    return 1 if problems else 0


if __name__ == '__main__':
    sys.exit(main())

#!/usr/bin/env python3
# Holds the product's rooms against .clang-tidy, and against the habits of writing that clang-tidy has no rule for.
"""Usage: tools/tidy.py [path...]   (all product sources without one; ./dev check --tidy)"""
import concurrent.futures
import json
import os
import re
import shutil
import subprocess
import sys

ROOMS = ('app/', 'base/', 'controls/', 'host/', 'toolkit/')
COMMANDS = 'build/native/compile_commands.json'
# What the native compiler is told and clang does not understand: its precompiled header and a warning of its own.
FOREIGN = re.compile(r' -Winvalid-pch| -include \S*cmake_pch\S*| -Wshadow=local')

HABITS = (
    (re.compile(r'^\s*[\w:][\w:<>,*& ]* \*?\w+(?:\[[^\]]*\])* = \{\};'), 'an empty initialiser is written `name{}`'),
    (re.compile(r'sizeof\((?!\w+::)[a-z_*]'), '`sizeof name`; brackets are for types'),
    (re.compile(r'(?:\b(?:if|while) \(|for \(.*|&& |\|\| |\()[^?&|]*[!=]= nullptr|[!=]= nullptr [?&|]'), 'a condition asks `name` or `!name`'),
)
# A result of type bool compares: a pointer is not turned into one silently.
RETURNED = re.compile(r'return [^?&|;]*[!=]= nullptr;')
# Before the anonymous namespace, which stands at the top of its file, come directives, using lines, comments and names declared in advance.
BEFORE_ANONYMOUS = re.compile(r'(#.*|//.*|using .*;|namespace [\w:]+ \{|(?:class|struct) \w+;|)$')


def habits(path):
    with open(path, encoding='utf-8') as file:
        lines = file.read().splitlines()
    for number, line in enumerate(lines, 1):
        code = line.split('//')[0]
        for pattern, words in HABITS:
            if pattern.search(RETURNED.sub('', code)):
                yield f'{path}:{number}: {words}'
    opened = [number for number, line in enumerate(lines) if line == 'namespace {']
    if opened and not all(BEFORE_ANONYMOUS.match(line) for line in lines[:opened[-1]]):
        yield f'{path}:{opened[-1] + 1}: the anonymous namespace stands once, at the top of its file'


def commands_for_clang(folder):
    """The native build's commands without what only its own compiler takes. Returns the sources that they compile."""
    if not os.path.isfile(COMMANDS):
        subprocess.run(['cmake', '--preset', 'native'], check=True, stdout=subprocess.DEVNULL)
    with open(COMMANDS, encoding='utf-8') as file:
        commands = json.load(file)
    for command in commands:
        command['command'] = FOREIGN.sub('', command['command'])
    os.makedirs(folder, exist_ok=True)
    with open(os.path.join(folder, 'compile_commands.json'), 'w', encoding='utf-8') as file:
        json.dump(commands, file)
    return {os.path.relpath(command['file']) for command in commands}


def findings(folder, sources):
    def tidy(source):
        result = subprocess.run(['clang-tidy', '-p', folder, '--quiet', source], capture_output=True, text=True)
        found = [line.replace(os.getcwd() + '/', '').replace('./', '', 1) if line.startswith(os.getcwd()) else line
                 for line in result.stdout.splitlines() if re.search(r': (warning|error): ', line)]
        return found or ([f'{source}: clang-tidy failed: {result.stderr[-300:]}'] if result.returncode else [])

    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        return sorted({os.path.normpath(line) for lines in pool.map(tidy, sources) for line in lines})


def main():
    os.chdir(subprocess.run(['git', 'rev-parse', '--show-toplevel'], capture_output=True, text=True, check=True).stdout.strip())
    if not shutil.which('clang-tidy'):
        print('tidy: clang-tidy is not here (./dev setup gets it), so nothing was looked at')
        return 1 if os.environ.get('CI') == 'true' else 0
    listed = subprocess.run(['git', 'ls-files', '-co', '--exclude-standard', *ROOMS], capture_output=True, text=True, check=True).stdout
    files = [path for path in sys.argv[1:] or listed.splitlines() if path.endswith(('.h', '.cpp')) and os.path.isfile(path)]
    folder = 'build/tidy'
    built = commands_for_clang(folder)
    sources = [path for path in files if path in built]
    problems = [problem for path in files for problem in habits(path)] + findings(folder, sources)
    for problem in problems:
        print(problem)
    print(f'tidy: {len(problems)} findings in {len(sources)} sources')
    return 1 if problems else 0


if __name__ == '__main__':
    sys.exit(main())

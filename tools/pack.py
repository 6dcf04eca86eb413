#!/usr/bin/env python3
# Puts a release's files into one zip that is the same to the last byte whenever and wherever it is made.
"""Usage: tools/pack.py <zip> <seconds since 1970> <name in the zip>=<file>..."""
import re
import sys
import time
import zipfile

LINK = re.compile(r'(?<!!)\[([^\]]*)\]\(([^)]*)\)')


def page(text, names):
    """A page as it is read on Windows, away from the sources: a link to a file that is not in the zip becomes its text."""
    def link(match):
        target = match[2].split('#')[0]
        return match[0] if not target or '://' in target or target in names else match[1]
    return LINK.sub(link, text).replace('\n', '\r\n')


def pack(target, seconds, files):
    """`files`: what each name in the zip is read from."""
    with zipfile.ZipFile(target, 'w', zipfile.ZIP_DEFLATED, compresslevel=9) as archive:
        for name in sorted(files):
            with open(files[name], 'rb') as file:
                content = file.read()
            if name.endswith('.md'):
                content = page(content.decode(), files).encode()
            entry = zipfile.ZipInfo(name, time.gmtime(seconds)[:6])
            entry.compress_type = zipfile.ZIP_DEFLATED
            # What made it and who may read it, which else depend on the machine.
            entry.create_system = 3
            entry.external_attr = (0o755 if name.endswith('.exe') else 0o644) << 16
            archive.writestr(entry, content)


if __name__ == '__main__':
    pack(sys.argv[1], int(sys.argv[2]), dict(argument.split('=', 1) for argument in sys.argv[3:]))

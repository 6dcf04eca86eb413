#!/usr/bin/env python3
# What a release's zip must be, whoever makes it and whenever.
import os
import sys
import tempfile
import unittest
import zipfile

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), '..', '..', 'tools'))
sys.dont_write_bytecode = True
import pack

FIFTH_OF_MAY = 1777984496  # 2026-05-05 12:34:56 UTC


class Pack(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = folder.name

    def put(self, name, content, mode=0o644, age=0):
        path = os.path.join(self.folder, name)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, 'w', encoding='utf-8', newline='') as file:
            file.write(content)
        os.chmod(path, mode)
        os.utime(path, (age, age))
        return path

    def packed(self, name, files):
        target = os.path.join(self.folder, name)
        pack.pack(target, FIFTH_OF_MAY, files)
        return target

    def bytes_of(self, path):
        with open(path, 'rb') as file:
            return file.read()

    def test_FilesOfTheSameContent_GiveTheSameBytes(self):
        one = self.packed('one.zip', {'README.md': self.put('a/r', 'Read\n'), 'The Tool.exe': self.put('a/t', 'MZ', 0o755, 1000)})
        other = self.packed('other.zip', {'The Tool.exe': self.put('b/x/t', 'MZ', 0o600, 900000), 'README.md': self.put('b/r', 'Read\n', 0o666)})
        self.assertEqual(self.bytes_of(one), self.bytes_of(other))
        third = self.packed('third.zip', {'README.md': self.put('c/r', 'Read\n'), 'The Tool.exe': self.put('c/t', 'MY')})
        self.assertNotEqual(self.bytes_of(one), self.bytes_of(third))

    def test_Entries_AreSortedAndCarryTheGivenTimeAndRights(self):
        made = self.packed('made.zip', {'b.md': self.put('b', ''), 'c.exe': self.put('c', 'M\nZ\n'), 'a.md': self.put('a', '', 0o600)})
        with zipfile.ZipFile(made) as archive:
            self.assertEqual([(entry.filename, entry.date_time, entry.create_system, oct(entry.external_attr >> 16)) for entry in archive.infolist()],
                             [('a.md', (2026, 5, 5, 12, 34, 56), 3, '0o644'), ('b.md', (2026, 5, 5, 12, 34, 56), 3, '0o644'),
                              ('c.exe', (2026, 5, 5, 12, 34, 56), 3, '0o755')])
            self.assertEqual(archive.read('c.exe'), b'M\nZ\n')

    def test_Pages_AreReadableAwayFromTheSources(self):
        for text, expected in [
                ('one\ntwo\n', 'one\r\ntwo\r\n'),
                ('[all](security.md), [part](security.md#part)', '[all](security.md), [part](security.md#part)'),
                ('[below](#below), [web](https://example.org/a.md)', '[below](#below), [web](https://example.org/a.md)'),
                ('held by [Trust](../tests/app/Trust.cpp) and [more](testing.md#more).', 'held by Trust and more.')]:
            self.assertEqual(pack.page(text, ['README.md', 'security.md']), expected, text)


if __name__ == '__main__':
    unittest.main()

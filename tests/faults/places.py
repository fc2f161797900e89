"""Small private disks, for tests of full, read-only and removed ones."""

import ctypes
import os
import unittest

CLONE_NEWNS, CLONE_NEWUSER = 0x00020000, 0x10000000
MS_RDONLY, MS_REMOUNT, MS_REC, MS_PRIVATE, MNT_DETACH = 1, 32, 16384, 1 << 18, 2

libc = ctypes.CDLL(None, use_errno=True)


def check(result):
    if result != 0:
        number = ctypes.get_errno()
        raise OSError(number, os.strerror(number))


def own_mounts():
    """Gives this process its own mount namespace; skips all tests if the system doesn't permit it."""
    user, group = os.getuid(), os.getgid()
    try:
        check(libc.unshare(CLONE_NEWNS | (CLONE_NEWUSER if user else 0)))
        if user:
            for file, text in (("setgroups", "deny"), ("uid_map", f"0 {user} 1"), ("gid_map", f"0 {group} 1")):
                with open(f"/proc/self/{file}", "w", encoding="ascii") as out:
                    out.write(text)
        check(libc.mount(None, b"/", None, MS_REC | MS_PRIVATE, None))
    except OSError as error:
        raise unittest.SkipTest(f"this user may not mount disks of his own: {error}") from error


def mount(folder, kilobytes, flags=0):
    check(libc.mount(b"tmpfs", os.fsencode(folder), b"tmpfs", flags, f"size={kilobytes}k".encode()))


def remount(folder, kilobytes, flags=0):
    mount(folder, kilobytes, flags | MS_REMOUNT)


def remove(folder):
    """Removes the disk and its mount point, as if it had been unplugged."""
    check(libc.umount2(os.fsencode(folder), MNT_DETACH))
    os.rmdir(folder)


def free_kilobytes(folder):
    status = os.statvfs(folder)
    return status.f_bavail * status.f_frsize // 1024

"""Starts the programs that a test needs, and ends them with it."""

import os
import shutil
import signal
import subprocess

from support.waiting import PATIENCE, wait_until


def require(*tools):
    """Fails the test if one of these tools is not installed."""
    for tool in tools:
        if not shutil.which(tool):
            raise RuntimeError(f"{tool} is not installed")


def start(command, environment, **options):
    """Starts a program in its own process group; it ends when the test program does."""
    options.setdefault("stdout", subprocess.DEVNULL)
    options.setdefault("stderr", subprocess.DEVNULL)
    return subprocess.Popen(["setpriv", "--pdeathsig", "KILL", *command], env=environment,
                            start_new_session=True, **options)


def end(process):
    """Ends a program and the processes that it has started."""
    for number in (signal.SIGCONT, signal.SIGTERM):
        signal_group(process, number)
    try:
        process.wait(timeout=3)
    except subprocess.TimeoutExpired:
        pass
    signal_group(process, signal.SIGKILL)
    process.wait()


def signal_group(process, number):
    try:
        os.killpg(process.pid, number)
    except ProcessLookupError:
        pass


def marked(marker):
    """Returns the names of the processes with this text in their environment, by process id."""
    found = {}
    for entry in os.listdir("/proc"):
        try:
            with open(f"/proc/{entry}/environ", "rb") as file:
                if marker.encode() in file.read():
                    with open(f"/proc/{entry}/comm", encoding="utf-8") as name:
                        found[int(entry)] = name.read().strip()
        except (OSError, ValueError):
            continue
    return found


def wait_until_ended(marker):
    """Waits until no process with this text in its environment runs."""
    try:
        wait_until(lambda: not marked(marker), "every process has ended")
    except AssertionError as error:
        raise AssertionError(f"left running: {marked(marker)}") from error


def run(command, environment):
    """Runs a tool to its end; returns its standard output."""
    return subprocess.run(command, env=environment, check=True, timeout=PATIENCE,
                          stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True).stdout


def run_for_bytes(command, environment):
    """Runs a tool to its end; returns the bytes of its standard output."""
    return subprocess.run(command, env=environment, check=True, timeout=10,
                          stdout=subprocess.PIPE, stderr=subprocess.PIPE).stdout


def wakeups(process_id):
    """Returns the number of voluntary context switches of all threads of a process."""
    total = 0
    for thread in os.listdir(f"/proc/{process_id}/task"):
        with open(f"/proc/{process_id}/task/{thread}/status", encoding="ascii") as status:
            total += next(int(line.split()[1]) for line in status
                          if line.startswith("voluntary_ctxt_switches"))
    return total

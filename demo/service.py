"""The demo service, for the scripts beside this file."""

import contextlib
import signal
import subprocess
import sys


@contextlib.contextmanager
def running_service(build, posted):
    """Runs the service of a build folder; gives the address of its host page.

    A script that is ended from outside takes the service with it.
    """
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(128 + signal.SIGTERM))
    service = subprocess.Popen(
        [build / "demo/awizo-demo-service", "--port", "0", "--posted", posted],
        stdout=subprocess.PIPE, encoding="utf-8")
    try:
        service.stdout.readline()
        yield service.stdout.readline().strip()
    finally:
        service.terminate()
        service.wait()

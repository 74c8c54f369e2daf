"""The demo service, and how a script ends that fails, for the scripts beside this file."""

import contextlib
import signal
import subprocess
import sys
import traceback


def fail(words):
    """Ends the script with this as its last line on stderr: what failed, and what to do."""
    sys.exit(f"{sys.argv[0]}: {words}")


def run(main):
    """Runs a script's main procedure to its end, whatever stops it."""
    try:
        main()
    except KeyboardInterrupt:
        sys.exit(128 + signal.SIGINT)
    except OSError as error:
        fail(f"{error}. Устраните причину и повторите.")
    except Exception as error:  # A script has faults too: where it is must be told, and that it is one.
        place = traceback.extract_tb(error.__traceback__)[-1]
        fail(f"{place.filename}, строка {place.lineno}: {type(error).__name__}: {error}. "
             "Это ошибка сценария; сообщите о ней.")


@contextlib.contextmanager
def running_service(build, posted, *options):
    """Runs the service of a build folder; gives the address of its host page.

    A script that is ended from outside takes the service with it.
    """
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(128 + signal.SIGTERM))
    service = subprocess.Popen(
        [build / "demo/awizo-demo-service", "--port", "0", "--posted", posted, *options],
        stdout=subprocess.PIPE, encoding="utf-8")
    try:
        service.stdout.readline()
        page = service.stdout.readline().strip()
        if not page:
            fail(f"учебная служба не запустилась (код {service.wait()}). Устраните причину, названную "
                 "выше, и повторите.")
        yield page
    finally:
        service.terminate()
        service.wait()

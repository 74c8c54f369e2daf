"""For the project's scripts in Python: none ends without a word on what failed and what to do."""

import signal
import subprocess
import sys
import traceback


def fail(words):
    """Ends the script with this as its last line on stderr."""
    sys.exit(f"{sys.argv[0]}: {words}")


def part(*command):
    """Calls another script of the project, which says by itself why it failed unless it was killed."""
    status = subprocess.run(list(map(str, command))).returncode
    if status < 0:
        fail(f"{command[0]} was ended by signal {-status}; call again.")
    if status:
        sys.exit(status)


def run(main):
    """Runs a script's main procedure, which returns its exit status, and ends the script."""
    try:
        sys.exit(main())
    except KeyboardInterrupt:
        sys.exit(128 + signal.SIGINT)
    except FileNotFoundError as error:
        fail(f"{error.filename} isn't there; 'tools/install-packages' installs all programs that scripts call.")
    except subprocess.CalledProcessError as error:
        fail(f"'{' '.join(map(str, error.cmd))}' failed ({error.returncode}). {(error.stderr or '').strip()}"
             " Mend that, then call again.")
    except OSError as error:
        fail(f"{error}. Mend that, then call again.")
    except Exception as error:  # A script has faults too: where it is must be told, and that it is one.
        place = traceback.extract_tb(error.__traceback__)[-1]
        fail(f"{place.filename}, line {place.lineno}: {type(error).__name__}: {error}. "
             "This is a fault of the script; please report it.")

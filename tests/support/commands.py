"""Commands that a test runs, and what it requires of them."""
import os
import subprocess


def run(*command, cwd=None, **environment):
    """What the command prints; it must succeed."""
    done = subprocess.run([str(word) for word in command], env={**os.environ, **environment}, cwd=cwd, text=True,
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    require(done.returncode == 0, *command, environment, done.stdout)
    return done.stdout


def require(condition, *explanation):
    if not condition:
        raise SystemExit("failed: " + " ".join(map(str, explanation)))

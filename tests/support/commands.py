"""Commands that a test runs, and what it requires of them."""
import os
import shutil
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


def unpacked(cpack, build, scratch):
    """The folder in the archive that `cpack` makes of a build folder."""
    run(cpack, "-B", scratch, cwd=build)
    archive, = [*scratch.glob("*.tar.xz"), *scratch.glob("*.zip")]
    shutil.unpack_archive(archive, scratch / "unpacked")
    folder, = (scratch / "unpacked").iterdir()
    return folder

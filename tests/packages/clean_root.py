"""A clean root: the smallest system that this machine's own mirror has, made anew for each run, to install a package in and to run it.

To be used in a mount namespace of its own: the root and all that is mounted in it last until that ends.
"""
import pathlib
import platform
import shutil
import subprocess

ENVIRONMENT = {"PATH": "/usr/sbin:/usr/bin:/sbin:/bin", "LANG": "C.UTF-8", "DEBIAN_FRONTEND": "noninteractive"}


def run(*command, **options):
    """What the command prints; an AssertionError with all of it if the command fails."""
    done = subprocess.run([str(word) for word in command], stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                          text=True, errors="replace", check=False, **options)
    if done.returncode:
        raise AssertionError(f"{' '.join(str(word) for word in command)} ended with status {done.returncode}:\n{done.stdout}")
    return done.stdout


def mirror():
    """The address from which this machine has its own release, the release and its parts (main, universe ...)."""
    release = platform.freedesktop_os_release()["VERSION_CODENAME"]
    rows = [row.split() for row in run("apt-get", "indextargets", "--format", "$(REPO_URI) $(RELEASE) $(COMPONENT)",
                                       "Created-By: Packages", f"Release: {release}").splitlines()]
    addresses = [address for address, _, component in rows if component == "main"]
    if not addresses:
        raise AssertionError(f"apt on this machine knows no source of {release}")
    return addresses[0], release, sorted({component for address, _, component in rows if address == addresses[0]})


class CleanRoot:
    """`kept` is a folder for what the next run can use again. The folder `shared` lies in the root under its own name."""

    def __init__(self, kept, shared):
        self.path = kept / "root"
        kept.mkdir(exist_ok=True)
        shutil.rmtree(kept / "unfinished", ignore_errors=True)  # of a run that was broken off; what was mounted in it has ended with that
        if not (kept / "base").exists():
            self._fetch_base(kept / "unfinished").rename(kept / "base")
        self.path.mkdir(exist_ok=True)
        run("mount", "-t", "tmpfs", "-o", "mode=755", "clean_root", self.path)  # in memory: installing is quick, and nothing is left
        run("cp", "--archive", f"{kept}/base/.", self.path)
        for outside, inside in [("/proc", "/proc"), ("/tmp/.X11-unix", "/tmp/.X11-unix"), (shared, shared),
                                (kept / "lists", "/var/lib/apt/lists"), (kept / "archives", "/var/cache/apt/archives")]:
            self._mount(pathlib.Path(outside), self.path / str(inside).lstrip("/"))
        self.apt_get("update")

    @staticmethod
    def _fetch_base(folder):
        address, release, components = mirror()
        run("debootstrap", "--variant=minbase", "--components=" + ",".join(components), release, folder, address)
        (folder / "etc/dpkg/dpkg.cfg.d/quick").write_text("force-unsafe-io\n", encoding="ascii")
        return folder

    @staticmethod
    def _mount(outside, inside):
        for folder in [outside, inside]:
            folder.mkdir(parents=True, exist_ok=True)
        run("mount", "--rbind", outside, inside)

    def run(self, *command):
        return run("chroot", self.path, *command, env=ENVIRONMENT)

    def apt_get(self, *words):
        return self.run("apt-get", "--yes", "--no-install-recommends", *words)

    def holds(self, place):
        return (self.path / str(place).lstrip("/")).exists()

    def add_user(self, name, home):
        self.run("useradd", "--create-home", "--home-dir", home, name)

    def as_user(self, name, *command):
        """The words that run a command as an ordinary user."""
        return ["chroot", f"--userspec={name}:{name}", str(self.path), *[str(word) for word in command]]

"""The wheel's tag: any CPython 3, but one platform, because the library is inside. The platform stands in setup.cfg,
where make_wheel.py wrote it."""

from setuptools import Distribution, setup

try:
    from setuptools.command.bdist_wheel import bdist_wheel
except ImportError:  # of setuptools before 70
    from wheel.bdist_wheel import bdist_wheel


class PlatformWheel(bdist_wheel):
    def get_tag(self):
        return "py3", "none", super().get_tag()[2]


class WithLibrary(Distribution):
    def has_ext_modules(self):
        return True


setup(cmdclass={"bdist_wheel": PlatformWheel}, distclass=WithLibrary)

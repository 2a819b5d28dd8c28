# Run by cpack on the staged tree: manual pages and changelogs are compressed, as the distribution wants them.
set(share ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/share)
file(GLOB_RECURSE pages ${share}/man/*.1)
execute_process(COMMAND gzip -9nf ${pages} ${share}/doc/velor/changelog ${share}/doc/velor/changelog.Debian
    COMMAND_ERROR_IS_FATAL ANY)

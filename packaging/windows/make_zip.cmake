# cmake -DFOLDER=... -DBUILDS=...;... -DNAME=... -P make_zip.cmake: installs the builds into FOLDER/NAME and packs that as
# FOLDER/NAME.zip. Files in the order of their names, of one time and without owners, so that the same contents give the
# same archive.
set(tree ${FOLDER}/${NAME})
file(REMOVE_RECURSE ${tree})
file(REMOVE ${tree}.zip)
foreach(build IN LISTS BUILDS)
    execute_process(COMMAND ${CMAKE_COMMAND} --install ${build} --prefix ${tree} OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
endforeach()
file(GLOB_RECURSE files RELATIVE ${FOLDER} ${tree}/*)
set(ENV{TZ} UTC)
execute_process(COMMAND touch -d 2000-01-01T12:00:00 ${files} WORKING_DIRECTORY ${FOLDER} COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND zip -q -X ${NAME}.zip ${files} WORKING_DIRECTORY ${FOLDER} COMMAND_ERROR_IS_FATAL ANY)

# Runs after CPack. Removes the scripts that CPack adds to packages with shared libraries. They only call ldconfig, and
# the package's trigger makes dpkg do that once for all packages.
foreach(package IN LISTS CPACK_PACKAGE_FILES)
  set(folder ${package}-unpacked)
  execute_process(COMMAND dpkg-deb --raw-extract ${package} ${folder} COMMAND_ERROR_IS_FATAL ANY)
  if(EXISTS ${folder}/DEBIAN/triggers)
    file(REMOVE ${folder}/DEBIAN/postinst ${folder}/DEBIAN/postrm)
    execute_process(COMMAND dpkg-deb --root-owner-group --build ${folder} ${package}
      OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
  endif()
  file(REMOVE_RECURSE ${folder})
endforeach()

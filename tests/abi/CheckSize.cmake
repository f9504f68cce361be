# Run by CTest with the definitions that CMakeLists.txt passes: fails when a library is too large without symbols for
# debuggers.
execute_process(COMMAND "${STRIP}" -o "${STRIPPED}" "${LIBRARY}" COMMAND_ERROR_IS_FATAL ANY)
file(SIZE "${STRIPPED}" size)
message(STATUS "${size} of ${LIMIT} bytes")
if(size GREATER LIMIT)
    message(FATAL_ERROR "${LIBRARY} is larger than ${LIMIT} bytes when it is stripped: ${size}")
endif()

# Installs the build (with the build's own compiler flags, so a sanitizer build stays consistent) into a scratch prefix, then configures, builds and runs a consumer of the package.
set(prefix ${WORK_DIR}/prefix)
file(REMOVE_RECURSE ${WORK_DIR})
foreach(step
        "${CMAKE_COMMAND};--install;${BUILD_DIR};--prefix;${prefix}"
        "${CMAKE_COMMAND};-S;${SOURCE_DIR};-B;${WORK_DIR}/consumer;-DCMAKE_PREFIX_PATH=${prefix};-DCMAKE_BUILD_TYPE=Debug;-DCMAKE_CXX_FLAGS=${CXX_FLAGS};-DCMAKE_EXE_LINKER_FLAGS=${LINKER_FLAGS}"
        "${CMAKE_COMMAND};--build;${WORK_DIR}/consumer"
        "${WORK_DIR}/consumer/consumer")
    execute_process(COMMAND ${step} RESULT_VARIABLE result OUTPUT_VARIABLE out ERROR_VARIABLE err)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "step failed: ${step}\n${out}\n${err}")
    endif()
endforeach()
message(STATUS "package consumer built and ran")

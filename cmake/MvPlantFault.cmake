# A deliberate fault planted in the in-memory model, to prove that the random-command test turns red
# when the model is wrong (configure a build directory of its own with -DMV_PLANT_FAULT=<name>, or
# run `make fault`). Empty, and nothing planted, in every other build.
set(MV_PLANT_FAULTS undo-forgets-field)
set(MV_PLANT_FAULT "" CACHE STRING "A deliberate in-memory model fault to plant (${MV_PLANT_FAULTS}); empty: none")
set_property(CACHE MV_PLANT_FAULT PROPERTY STRINGS "" ${MV_PLANT_FAULTS})
if(MV_PLANT_FAULT AND NOT MV_PLANT_FAULT IN_LIST MV_PLANT_FAULTS)
    message(FATAL_ERROR "MV_PLANT_FAULT: no fault named '${MV_PLANT_FAULT}' (known: ${MV_PLANT_FAULTS})")
endif()

# Compiles the chosen fault into the target as MV_PLANT_FAULT_<NAME> (upper case, '-' as '_').
function(mv_plant_fault target)
    if(NOT MV_PLANT_FAULT)
        return()
    endif()
    string(TOUPPER "MV_PLANT_FAULT_${MV_PLANT_FAULT}" macro)
    string(REPLACE "-" "_" macro "${macro}")
    target_compile_definitions(${target} PRIVATE ${macro})
    message(WARNING "${target} is built with a deliberate fault: ${MV_PLANT_FAULT}")
endfunction()

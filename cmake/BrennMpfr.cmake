# MPFR, GMP and MPC, looked up once for every program that computes in arbitrary
# precision: the table generators, the accuracy tool and the tests against MPFR. A found
# set becomes an interface target: brenn_mpfr (MPFR with GMP) and brenn_mpc (MPC with
# both). Users test `if(TARGET brenn_mpfr)` and say what they leave out without it.
find_library(BRENN_MPFR_LIB mpfr)
find_library(BRENN_GMP_LIB gmp)
find_library(BRENN_MPC_LIB mpc)
if(BRENN_MPFR_LIB AND BRENN_GMP_LIB AND NOT TARGET brenn_mpfr)
  add_library(brenn_mpfr INTERFACE IMPORTED GLOBAL)
  target_link_libraries(brenn_mpfr INTERFACE ${BRENN_MPFR_LIB} ${BRENN_GMP_LIB})
  if(BRENN_MPC_LIB)
    add_library(brenn_mpc INTERFACE IMPORTED GLOBAL)
    target_link_libraries(brenn_mpc INTERFACE ${BRENN_MPC_LIB} brenn_mpfr)
  endif()
endif()

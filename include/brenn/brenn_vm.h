/** @file brenn_vm.h
 * Vector mathematics through the front-end: one checked entry a row and accuracy
 * choice, and the settings of how long vectors are split over threads.
 *
 * Entries (declared in brenn_vm_entries.h, made from the row list):
 * - brenn_vm_<fn>_<t>(n, inputs..., results...) runs the row at the calling thread's
 *   accuracy (its mode word, brenn_zar_kernel_GetMode());
 * - brenn_vm_<fn>_<t>_acc(n, inputs..., results..., accuracy) runs it at BRENN_LA,
 *   BRENN_HA or BRENN_EP for this call only; the thread's mode word is not touched.
 * <fn> is the function's name in lower case, <t> the element type: f32 (float), f64
 * (double), c64 (BrennComplex8) or c128 (BrennComplex16); brenn_vm_exp_f64() is the
 * exponential of doubles.
 *
 * Checks, in this order, before any kernel runs; a refused call writes no element,
 * stores its status in the thread's status word and returns it:
 * 1. n negative: BRENN_ERR_BAD_SIZE; a packing stride below 1: BRENN_ERR_BAD_ARGUMENT;
 * 2. an accuracy other than the three: BRENN_ERR_BAD_ACCURACY;
 * 3. a null array with n > 0: BRENN_ERR_NULL_POINTER;
 * 4. no kernel in the row's slot in this build: BRENN_ERR_NOT_AVAILABLE.
 * n = 0 with null arrays is accepted and does nothing.
 *
 * Statuses. Elements are reported as the thread's error mode says (status word,
 * callback, errno, x87 flag). The entry returns the status of this call: the code of
 * its last reported element in vector order, or BRENN_OK. The thread's status word
 * then holds that code; a call with no report leaves the word as it was.
 *
 * Threads. A call whose work (n times the slot's cost figure, the row's _ctab) is at
 * least the split threshold runs in blocks on the service library's thread pool, the
 * calling thread taking part. Each block's thread first gets the caller's mode word,
 * error callback and input-vector pointer, so a reported element carries its index in
 * the caller's whole vector; results are bit for bit those of one thread. The block
 * statuses are collected in vector order into the caller's thread (status word, errno
 * and the floating-point flags). A callback may then run on several threads at once.
 * Calls are not split when the mode word has trap bits (a trap must reach the caller's
 * thread), nor for the packing rows. brenn_serv_set_num_threads() bounds the pool.
 *
 * The front-end keeps the input-vector pointer of the threads that call it null
 * between calls. A program that also sets it through
 * brenn_zar_kernel_SetInterfInputVectorPointer() sets it back to null before its next
 * front-end call, or the indices reported by that call are offset. */
#ifndef BRENN_VM_H
#define BRENN_VM_H

#include "brenn_status.h"
#include "brenn_types.h"
#include "brenn_vecmath.h"
#include "brenn_vm_entries.h"

#ifdef __cplusplus
extern "C" {
#endif

/** Accuracy of a brenn_vm_*_acc() call: the values of the mode word's accuracy field. */
enum {
    BRENN_LA = 1, /**< low accuracy (slot 0) */
    BRENN_HA = 2, /**< high accuracy (slot 1) */
    BRENN_EP = 3  /**< enhanced performance (slot 2) */
};

/** The split threshold: the work (elements times the slot's cost figure) from which a
 * call runs on the thread pool.
 * @return the current threshold. */
double brenn_vm_get_split_work(void);
/** Sets the split threshold; 0 or below restores the measured default
 * (BRENN_VM_SPLIT_WORK_DEFAULT).
 * @param work the new threshold, in cost units
 * @return the previous threshold. */
double brenn_vm_set_split_work(double work);

/** The measured default split threshold, in cost units: see
 * docs/frontend-performance.md for the run that set it. */
#define BRENN_VM_SPLIT_WORK_DEFAULT 500000.0

#ifdef __cplusplus
}
#endif

#endif

/* What the library asks an OpenMP runtime, for compilers without a header of their own: GCC's is for GCC alone. */
#ifndef OMP_H
#define OMP_H

#ifdef __cplusplus
extern "C" {
#endif

int omp_get_active_level(void);
int omp_get_max_active_levels(void);
int omp_get_max_threads(void);
int omp_get_thread_limit(void);
void omp_set_num_threads(int threads);

#ifdef __cplusplus
}
#endif

#endif

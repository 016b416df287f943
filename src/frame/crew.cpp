// The helpers of a process.
#include "frame/crew.h"

#include <atomic>

#include <pthread.h>
#include <signal.h>

namespace tarn::crew {

namespace {

constexpr int mostHelpers = 255;
constexpr std::size_t stackBytes = std::size_t{1} << 20;

// A work that helpers may join.
struct Job {
    Run run;
    void* work;
    int pieces;
    std::atomic<int> next;

    // Takes pieces until none is left.
    void runFrom(int piece, int worker)
    {
        for (; piece < pieces; piece = next.fetch_add(1, std::memory_order_relaxed)) {
            run(work, piece, worker);
        }
    }
};

// Set in a copy of the process, which has its memory and none of its helpers. A copy is not to ask for the lock: who
// held it may be among those that are missing.
std::atomic<bool> isCopy{false};

class Lock {
public:
    explicit Lock(pthread_mutex_t& m) : mutex(&m) { pthread_mutex_lock(mutex); }
    ~Lock() { pthread_mutex_unlock(mutex); }
    Lock(const Lock&) = delete;
    Lock& operator=(const Lock&) = delete;

private:
    pthread_mutex_t* mutex;
};

// Without constructor or destructor: calls may come before the one and after the other.
struct Crew {
    pthread_mutex_t mutex = PTHREAD_MUTEX_INITIALIZER; // guards everything below
    pthread_cond_t opened = PTHREAD_COND_INITIALIZER;  // there are places, or the end has come
    pthread_cond_t left = PTHREAD_COND_INITIALIZER;    // the last helper has left a job
    pthread_t helpers[mostHelpers] = {};
    int made = 0;
    Job* job = nullptr;
    int places = 0;     // helpers that may still join the job
    int nextWorker = 0; // what the next one is called
    int inside = 0;     // helpers in the job
    bool isTaken = false;
    bool isEnding = false;

    static void* live(void* self)
    {
        static_cast<Crew*>(self)->help();
        return nullptr;
    }

    void help()
    {
        const Lock lock(mutex);
        for (;;) {
            while (places == 0 && !isEnding) {
                pthread_cond_wait(&opened, &mutex);
            }
            if (isEnding) {
                return;
            }
            --places;
            ++inside;
            Job* const joined = job;
            const int worker = nextWorker++;
            pthread_mutex_unlock(&mutex);
            joined->runFrom(joined->next.fetch_add(1, std::memory_order_relaxed), worker);
            pthread_mutex_lock(&mutex);
            if (--inside == 0) {
                pthread_cond_signal(&left);
            }
        }
    }

    // Makes helpers until there are `wanted`; answers with how many there are.
    int atLeast(int wanted)
    {
        if (made >= wanted) {
            return wanted;
        }
        if (made == 0 && pthread_atfork(nullptr, nullptr, [] { isCopy = true; }) != 0) {
            return 0;
        }
        // The program's signals are for its own threads.
        sigset_t all;
        sigset_t callers;
        sigfillset(&all);
        pthread_attr_t attributes;
        if (pthread_attr_init(&attributes) != 0) {
            return made;
        }
        pthread_attr_setstacksize(&attributes, stackBytes);
        pthread_sigmask(SIG_SETMASK, &all, &callers);
        while (made < wanted && pthread_create(&helpers[made], &attributes, live, this) == 0) {
            ++made;
        }
        pthread_sigmask(SIG_SETMASK, &callers, nullptr);
        pthread_attr_destroy(&attributes);
        return made;
    }

    // Lets helpers join; false if another call has them or there are none.
    bool open(Job& offered, int workers)
    {
        if (isCopy) {
            return false;
        }
        int count = 0;
        {
            const Lock lock(mutex);
            if (isTaken || isEnding) {
                return false;
            }
            count = atLeast(workers - 1 < mostHelpers ? workers - 1 : mostHelpers);
            if (count == 0) {
                return false;
            }
            isTaken = true;
            job = &offered;
            places = count;
            nextWorker = 1;
        }
        for (; count > 0; --count) {
            pthread_cond_signal(&opened);
        }
        return true;
    }

    // Lets nobody join any more, and waits for those who did.
    void close()
    {
        const Lock lock(mutex);
        places = 0;
        while (inside != 0) {
            pthread_cond_wait(&left, &mutex);
        }
        job = nullptr;
        isTaken = false;
    }

    void end()
    {
        if (isCopy) {
            return;
        }
        int count = 0;
        {
            const Lock lock(mutex);
            isEnding = true;
            count = made;
        }
        pthread_cond_broadcast(&opened);
        for (int i = 0; i < count; ++i) {
            pthread_join(helpers[i], nullptr);
        }
    }
};

constinit Crew theCrew;

// Before the library's code is gone.
[[gnu::destructor]] void endCrew() { theCrew.end(); }

} // namespace

void share(int pieces, int workers, Run run, void* work)
{
    Job job{run, work, pieces, 1};
    const bool isShared = workers > 1 && pieces > 1 && theCrew.open(job, workers);
    run(work, 0, 0);
    job.runFrom(job.next.fetch_add(1, std::memory_order_relaxed), 0);
    if (isShared) {
        theCrew.close();
    }
}

} // namespace tarn::crew

// The threading layer: one persistent pool of threads behind the `threader` records
// and the brenn_qes_serv_threader_* functions. The calling thread always takes part
// as thread 0. A call made while the pool is busy (from another caller, or nested
// inside a pool job) runs on its own thread, so that no call can wait on itself.
#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <cstring>
#include <mutex>
#include <thread>
#include <vector>

#include "platform/threader.h"

namespace {

struct Job {
    void (*run)(const Job& job, int threadIndex);
    int threadCount = 1;
    // parallelFor
    int64_t taskCount = 0;
    void* context = nullptr;
    ThreaderChunk chunk = nullptr;
    std::atomic<int64_t> next{0};
    // runTeam
    ThreaderWorker worker = nullptr;
};

int HardwareThreads() {
    unsigned n = std::thread::hardware_concurrency();
    return n == 0 ? 1 : static_cast<int>(std::min(n, 256u));
}

struct Pool {
    std::mutex mutex;
    std::condition_variable wake;
    std::condition_variable finished;
    std::vector<std::thread> workers;
    const Job* job = nullptr;
    uint64_t generation = 0;
    int pending = 0; // workers still inside the current job
    bool stopping = false;
    std::atomic<bool> busy{false};
    std::atomic<int> limit{HardwareThreads()};

    ~Pool() {
        {
            std::lock_guard<std::mutex> lock(mutex);
            stopping = true;
        }
        wake.notify_all();
        for (std::thread& t : workers) t.join();
    }

    void WorkerLoop(int index) {
        uint64_t seen = 0;
        std::unique_lock<std::mutex> lock(mutex);
        for (;;) {
            wake.wait(lock, [&] { return stopping || generation != seen; });
            if (stopping) return;
            seen = generation;
            const Job* current = job;
            if (current == nullptr || index >= current->threadCount) continue;
            lock.unlock();
            current->run(*current, index);
            lock.lock();
            if (--pending == 0) finished.notify_all();
        }
    }

    // Runs job on `threads` threads (the caller being thread 0) and returns when all
    // of them are done. The caller holds `busy`.
    void Run(Job& j) {
        int helpers = j.threadCount - 1;
        {
            std::lock_guard<std::mutex> lock(mutex);
            while (static_cast<int>(workers.size()) < helpers) {
                int index = static_cast<int>(workers.size()) + 1;
                workers.emplace_back([this, index] { WorkerLoop(index); });
            }
            job = &j;
            pending = helpers;
            ++generation;
        }
        wake.notify_all();
        j.run(j, 0);
        std::unique_lock<std::mutex> lock(mutex);
        finished.wait(lock, [&] { return pending == 0; });
        job = nullptr;
    }
};

Pool& ThePool() {
    static Pool pool;
    return pool;
}

void RunChunks(const Job& j, int threadIndex) {
    Job& job = const_cast<Job&>(j);
    for (;;) {
        int64_t i = job.next.fetch_add(1, std::memory_order_relaxed);
        if (i >= job.taskCount) return;
        job.chunk(i, threadIndex, job.taskCount, job.context);
    }
}

void RunWorker(const Job& j, int threadIndex) {
    j.worker(threadIndex, j.threadCount, j.context);
}

// Takes the pool for one call; false when another call has it.
bool Acquire(Pool& pool) {
    bool expected = false;
    return pool.busy.compare_exchange_strong(expected, true, std::memory_order_acquire);
}

void SerialFor(int64_t taskCount, int, void* context, ThreaderChunk chunk) {
    for (int64_t i = 0; i < taskCount; ++i) chunk(i, 0, taskCount, context);
}

void SerialTeam(void* context, ThreaderWorker worker) {
    worker(0, 1, context);
}

int SerialMax() {
    return 1;
}

const threader kPoolThreader = {brenn_qes_serv_threader_for, nullptr,
                                brenn_qes_serv_threader_team, nullptr,
                                brenn_qes_serv_threader_get_num_threads_limit};
const threader kSerialThreader = {SerialFor, nullptr, SerialTeam, nullptr, SerialMax};

} // namespace

extern "C" int brenn_qes_serv_threader_get_num_threads_limit(void) {
    return ThePool().limit.load(std::memory_order_relaxed);
}

extern "C" int brenn_serv_set_num_threads(int limit) {
    int wanted = limit <= 0 ? HardwareThreads() : std::min(limit, 256);
    return ThePool().limit.exchange(wanted, std::memory_order_relaxed);
}

extern "C" void brenn_qes_serv_threader_for(int64_t taskCount, int threadCount, void* context,
                                            ThreaderChunk chunk) {
    if (taskCount <= 0 || chunk == nullptr) return;
    Pool& pool = ThePool();
    int threads = pool.limit.load(std::memory_order_relaxed);
    if (threadCount > 0) threads = std::min(threads, threadCount);
    if (static_cast<int64_t>(threads) > taskCount) threads = static_cast<int>(taskCount);
    if (threads <= 1 || !Acquire(pool)) {
        SerialFor(taskCount, 1, context, chunk);
        return;
    }
    Job job;
    job.run = RunChunks;
    job.threadCount = threads;
    job.taskCount = taskCount;
    job.context = context;
    job.chunk = chunk;
    pool.Run(job);
    pool.busy.store(false, std::memory_order_release);
}

extern "C" void brenn_qes_serv_threader_team(void* context, ThreaderWorker worker) {
    if (worker == nullptr) return;
    Pool& pool = ThePool();
    int threads = pool.limit.load(std::memory_order_relaxed);
    if (threads <= 1 || !Acquire(pool)) {
        SerialTeam(context, worker);
        return;
    }
    Job job;
    job.run = RunWorker;
    job.threadCount = threads;
    job.context = context;
    job.worker = worker;
    pool.Run(job);
    pool.busy.store(false, std::memory_order_release);
}

extern "C" const threader* brenn_serv_pool_threader(void) {
    return &kPoolThreader;
}

extern "C" const threader* brenn_serv_serial_threader(void) {
    return &kSerialThreader;
}

extern "C" void* brenn_serv_load_thread_fun(const char* name) {
    if (name == nullptr) return nullptr;
    if (strcmp(name, "brenn_qes_serv_threader_for") == 0)
        return reinterpret_cast<void*>(&brenn_qes_serv_threader_for);
    if (strcmp(name, "brenn_qes_serv_threader_get_num_threads_limit") == 0)
        return reinterpret_cast<void*>(&brenn_qes_serv_threader_get_num_threads_limit);
    if (strcmp(name, "brenn_qes_serv_threader_team") == 0)
        return reinterpret_cast<void*>(&brenn_qes_serv_threader_team);
    return nullptr;
}

// The ground of the fault tests: a company's folder with an untouched copy, a process killed at its
// n-th write to the disk, a write that fails.
#pragma once

#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

#include "store/fault_vfs.h"
#include "support/zkusebni_firma.h"

namespace zkouska {

namespace fs = std::filesystem;

inline constexpr long k_nejvice_operaci = 5000;

/// The company's payroll folder with an untouched copy beside it, to which every trial returns.
class Odolnost : public ::testing::Test {
  protected:
    void pripravena() { prekopiruj(firma().slozka.cesta(), puvodni()); }
    void obnov() { prekopiruj(puvodni(), zkousena()); }
    void zapamatuj() { prekopiruj(zkousena(), puvodni()); }
    ZkusebniFirma& firma() { return *firma_; }
    void zavri_firmu() { firma_->session.zavri_spojeni(); }
    fs::path puvodni() const { return dilna_ / "puvodni"; }
    fs::path zkousena() const { return dilna_ / "zkousena"; }
    fs::path zorv() const { return zkousena() / "FIRMA22" / "Zorv"; }

    /// Runs the work in a process of its own that is killed at its n-th write; false when it got to
    /// its end.
    bool zabit(long n, const std::function<void()>& prace) {
        const pid_t potomek = fork();
        if (potomek == 0) {
            const FaultyDisk disk(Fault::kill, n);
            prace();
            _exit(0);
        }
        int stav = 0;
        EXPECT_EQ(waitpid(potomek, &stav, 0), potomek);
        EXPECT_TRUE(WIFEXITED(stav));
        EXPECT_TRUE(WEXITSTATUS(stav) == 0 || WEXITSTATUS(stav) == killed_status);
        return WEXITSTATUS(stav) == killed_status;
    }

    /// Kills at the first, second, ... write until the work ends; `pred` runs before each trial,
    /// `over` looks at what is left.
    void zabijej(const std::function<void()>& prace,
                 const std::function<void(bool dokonceno)>& over,
                 const std::function<void()>& pred = {}) {
        long n = 0;
        for (bool zabito = true; zabito && n < k_nejvice_operaci && !HasFatalFailure();) {
            SCOPED_TRACE(++n);
            obnov();
            if (pred) pred();
            zabito = zabit(n, prace);
            over(!zabito);
        }
        EXPECT_GT(n, 10) << "zápisů na disk je podezřele málo";
        EXPECT_LT(n, k_nejvice_operaci);
    }

    /// Lets the first, second, ... write fail once, then with all later ones.
    void kaz(const std::function<void()>& prace, const std::function<void(bool dokonceno)>& over) {
        kaz_chybou(Fault::error_once, prace, over);
        kaz_chybou(Fault::full_from, prace, over);
    }

    /// The work either reports the failure or gets over it.
    void kaz_chybou(Fault chyba, const std::function<void()>& prace,
                    const std::function<void(bool dokonceno)>& over) {
        long n = 0;
        for (bool zasazeno = true; zasazeno && n < k_nejvice_operaci;) {
            SCOPED_TRACE(++n);
            obnov();
            bool dokonceno = true;
            {
                const FaultyDisk disk(chyba, n);
                try {
                    prace();
                } catch (const base::ChybaDat&) {
                    dokonceno = false;
                }
                zasazeno = disk.struck();
            }
            over(dokonceno);
        }
        EXPECT_GT(n, 10);
    }

    DocasnaSlozka dilna_;

  private:
    static void prekopiruj(const fs::path& odkud, const fs::path& kam) {
        fs::remove_all(kam);
        fs::copy(odkud, kam, fs::copy_options::recursive);
    }
    const FaultyDisk sleduj_{Fault::none, 0};
    std::unique_ptr<ZkusebniFirma> firma_ = std::make_unique<ZkusebniFirma>();
};

}  // namespace zkouska

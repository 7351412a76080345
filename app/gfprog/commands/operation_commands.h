// SPDX-License-Identifier: MIT

// The commands that run the operations of a flow.
#pragma once

#include "gfprog_options.h"

class GFPROG_PROGRAM_COMMAND final : public GFPROG_COMMAND
{
public:
    const char* name() const override { return "program"; }
    const char* summary() const override { return "Erase, program and verify what a file covers"; }
    const char* arguments() const override { return "FILE"; }
    std::pair<int, int> argument_range() const override { return {1, 1}; }
    void add_options(QCommandLineParser& parser) const override;
    int run(const CLI_CALL& call) const override;
};

class GFPROG_ERASE_COMMAND final : public GFPROG_COMMAND
{
public:
    const char* name() const override { return "erase"; }
    const char* summary() const override { return "Erase the device, or a range of it"; }
    const char* arguments() const override { return ""; }
    std::pair<int, int> argument_range() const override { return {0, 0}; }
    void add_options(QCommandLineParser& parser) const override;
    int run(const CLI_CALL& call) const override;
};

class GFPROG_BLANK_CHECK_COMMAND final : public GFPROG_COMMAND
{
public:
    const char* name() const override { return "blank-check"; }
    const char* summary() const override { return "Check that the device, or a range of it, is blank"; }
    const char* arguments() const override { return ""; }
    std::pair<int, int> argument_range() const override { return {0, 0}; }
    void add_options(QCommandLineParser& parser) const override;
    int run(const CLI_CALL& call) const override;
};

class GFPROG_VERIFY_COMMAND final : public GFPROG_COMMAND
{
public:
    const char* name() const override { return "verify"; }
    const char* summary() const override { return "Compare the device with a file"; }
    const char* arguments() const override { return "FILE"; }
    std::pair<int, int> argument_range() const override { return {1, 1}; }
    void add_options(QCommandLineParser& parser) const override;
    int run(const CLI_CALL& call) const override;
};

class GFPROG_READ_COMMAND final : public GFPROG_COMMAND
{
public:
    const char* name() const override { return "read"; }
    const char* summary() const override { return "Read the device, or a range of it, into a file"; }
    const char* arguments() const override { return "FILE"; }
    std::pair<int, int> argument_range() const override { return {1, 1}; }
    void add_options(QCommandLineParser& parser) const override;
    int run(const CLI_CALL& call) const override;
};

class GFPROG_RUN_COMMAND final : public GFPROG_COMMAND
{
public:
    const char* name() const override { return "run"; }
    const char* summary() const override { return "Run operations of the flow by their names"; }
    const char* arguments() const override { return "OPERATION..."; }
    std::pair<int, int> argument_range() const override { return {1, -1}; }
    std::vector<std::string> choices(const std::string& value) const override;
    void add_options(QCommandLineParser& parser) const override;
    int run(const CLI_CALL& call) const override;
};

class GFPROG_TRACE_COMMAND final : public GFPROG_COMMAND
{
public:
    const char* name() const override { return "trace"; }
    const char* summary() const override { return "Run operations and print every command that is sent"; }
    const char* arguments() const override { return "OPERATION..."; }
    std::pair<int, int> argument_range() const override { return {1, -1}; }
    std::vector<std::string> choices(const std::string& value) const override;
    void add_options(QCommandLineParser& parser) const override;
    int run(const CLI_CALL& call) const override;
};

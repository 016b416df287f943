/* Options, help and messages of the example programs. */
#include "program.h"

#include <errno.h>
#include <limits.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

static const char* name = "example";

const char* programName(void) { return name; }

int fail(const char* what, const char* reason)
{
    fflush(stdout); /* what was found so far comes first */
    fprintf(stderr, "%s: %s: %s\n", name, what, reason);
    return 0;
}

int succeeded(const char* what, TarnStatus status)
{
    return status >= tarnStsNoErr || fail(what, tarnGetStatusString(status));
}

int outputArrived(void) { return (fflush(stdout) == 0 && !ferror(stdout)) || fail("output", strerror(errno)); }

/* -- Help ---------------------------------------------------------------------------------------------------------- */

static int widthOf(const Option* option)
{
    return (int)(strlen(option->name) + (option->value != NULL ? strlen(option->value) + 1 : 0));
}

/* The name, its text in a column of its own, and behind that what holds if the option is not given. */
static void printOption(const char* label, const char* help, const char* otherwise, int width)
{
    const char* line = help;

    printf("  %-*s  ", width, label);
    for (;;) {
        const size_t length = strcspn(line, "\n");

        printf("%.*s%s\n", (int)length, line, line[length] == '\0' ? otherwise : "");
        if (line[length] == '\0')
            return;
        line += length + 1;
        printf("  %*s  ", width, "");
    }
}

/* What the target has before anything is parsed, if that is a value that could have been given. */
static const char* defaultOf(const Option* option)
{
    static char text[40];
    double number = option->least - 1;

    if (option->kind == choiceOption) {
        snprintf(text, sizeof text, " (%s)", option->choices[*(const int*)option->target]);
        return text;
    }
    if (option->kind == wholeOption)
        number = *(const int*)option->target;
    else if (option->kind == numberOption)
        number = *(const double*)option->target;
    if (!(number >= option->least && number <= option->most) || option->kind == flagOption ||
        option->kind == textOption)
        return "";
    snprintf(text, sizeof text, " (%.15g)", number);
    return text;
}

static void printHelp(const Program* program)
{
    int width = (int)strlen("-h, --help");
    int i;

    for (i = 0; i < program->optionCount; ++i) {
        if (widthOf(&program->options[i]) > width)
            width = widthOf(&program->options[i]);
    }
    printf("usage: %s %s\n\n%s\n", program->name, program->arguments, program->about);
    for (i = 0; i < program->optionCount; ++i) {
        const Option* const option = &program->options[i];
        char label[80];

        snprintf(label, sizeof label, "%s%s%s", option->name, option->value != NULL ? " " : "",
                 option->value != NULL ? option->value : "");
        printOption(label, option->help, defaultOf(option), width);
    }
    printOption("-h, --help", "shows this text", "", width);
}

/* -- Arguments ----------------------------------------------------------------------------------------------------- */

static void refuse(const char* what, const char* reason)
{
    fail(what, reason);
    exit(EXIT_FAILURE);
}

static void refuseNumber(const char* what, const char* kind, double least, double most)
{
    char reason[120];

    if (least == aboveZero)
        snprintf(reason, sizeof reason, "%s above 0 is wanted", kind);
    else
        snprintf(reason, sizeof reason, "%s from %.15g to %.15g is wanted", kind, least, most);
    refuse(what, reason);
}

static double parseNumber(const char* what, const char* text, const char* kind, double least, double most)
{
    char* end;
    double value;

    errno = 0;
    value = strtod(text, &end);
    if (end == text || *end != '\0' || errno != 0 || !(value >= least && value <= most))
        refuseNumber(what, kind, least, most);
    return value;
}

int parseWhole(const char* what, const char* text, double least, double most)
{
    static const char kind[] = "a whole number";
    const double value = parseNumber(what, text, kind, least, most);

    if (value != (int)value)
        refuseNumber(what, kind, least, most);
    return (int)value;
}

static void parseChoice(const Option* option, const char* text)
{
    char reason[200] = "one of these is wanted:";
    int i;

    for (i = 0; option->choices[i] != NULL; ++i) {
        if (strcmp(option->choices[i], text) == 0) {
            *(int*)option->target = i;
            return;
        }
        snprintf(reason + strlen(reason), sizeof reason - strlen(reason), " %s", option->choices[i]);
    }
    refuse(option->name, reason);
}

static void parseValue(const Option* option, const char* text)
{
    switch (option->kind) {
    case flagOption:
        *(int*)option->target = 1;
        break;
    case wholeOption:
        *(int*)option->target = parseWhole(option->name, text, option->least, option->most);
        break;
    case numberOption:
        *(double*)option->target = parseNumber(option->name, text, "a number", option->least, option->most);
        break;
    case choiceOption:
        parseChoice(option, text);
        break;
    case textOption:
        *(const char**)option->target = text;
        break;
    }
}

static const Option* findOption(const Program* program, const char* argument)
{
    int i;

    for (i = 0; i < program->optionCount; ++i) {
        if (strcmp(program->options[i].name, argument) == 0)
            return &program->options[i];
    }
    refuse(argument, "no such option; try --help");
    return NULL;
}

int parseArguments(const Program* program, int argc, char** argv, const char** operands)
{
    int count = 0;
    int i;

    name = program->name;
    for (i = 1; i < argc; ++i) {
        if (strcmp(argv[i], "-h") == 0 || strcmp(argv[i], "--help") == 0) {
            printHelp(program);
            exit(outputArrived() ? EXIT_SUCCESS : EXIT_FAILURE);
        }
    }
    for (i = 1; i < argc; ++i) {
        if (argv[i][0] == '-' && argv[i][1] != '\0' && strchr("0123456789.", argv[i][1]) == NULL) {
            const Option* const option = findOption(program, argv[i]);

            if (option->kind != flagOption && ++i == argc)
                refuse(option->name, "a value is missing");
            parseValue(option, argv[i]);
        } else if (count == program->mostOperands) {
            refuse(argv[i], "one argument too many; try --help");
        } else {
            operands[count++] = argv[i];
        }
    }
    if (count < program->leastOperands)
        refuse("arguments", "some are missing; try --help");
    return count;
}

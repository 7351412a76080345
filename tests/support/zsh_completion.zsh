# SPDX-License-Identifier: MIT
#
# What zsh offers for a command line, one "<word>" a line among other things that its terminal shows.
# usage: zsh -f zsh_completion.zsh DIRECTORY LINE
#
# DIRECTORY has the completion, named as zsh looks for it (_tool), and is where the line is typed; the tool is in PATH.
zmodload zsh/zpty
# What would be offered is printed.
cat >$1/init.zsh <<'TXT'
PS1='ready> '
fpath=($PWD $fpath)
autoload -Uz compinit
compinit -u -D
compadd() { local -a hits; builtin compadd -O hits "$@"; print -rl -- "<"${^hits}">"; }
TXT
cd $1
zpty shell zsh -f -i
zpty -w shell 'source ./init.zsh'
zpty -r -m shell shown '*ready> *'
zpty -w -n shell $2$'\t'
# What was typed is taken back; the shell gets to this line when it has completed the other one.
zpty -w shell $'\x15print "the ""end"'
zpty -r -m shell shown '*the end*'
print -r -- $shown
zpty -d shell

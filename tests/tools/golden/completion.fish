# Completion of zulspectrum for fish.
complete -c zulspectrum -n '__fish_use_subcommand' -l help
complete -c zulspectrum -n '__fish_use_subcommand' -l family -r
complete -c zulspectrum -n '__fish_use_subcommand' -l length -r
complete -c zulspectrum -n '__fish_use_subcommand' -l nperseg -r
complete -c zulspectrum -n '__fish_use_subcommand' -l order -r
complete -c zulspectrum -n '__fish_use_subcommand' -l hop -r
complete -c zulspectrum -n '__fish_use_subcommand' -l noverlap -r
complete -c zulspectrum -n '__fish_use_subcommand' -l window -r
complete -c zulspectrum -n '__fish_use_subcommand' -l flag -r
complete -c zulspectrum -n '__fish_use_subcommand' -l precision -r
complete -c zulspectrum -n '__fish_use_subcommand' -l check
complete -c zulspectrum -n '__fish_use_subcommand' -l channel -r
complete -c zulspectrum -n '__fish_use_subcommand' -l start -r
complete -c zulspectrum -n '__fish_use_subcommand' -l end -r
complete -c zulspectrum -n '__fish_use_subcommand' -l decimal -r
complete -c zulspectrum -n '__fish_use_subcommand' -l allow-damaged
complete -c zulspectrum -n '__fish_use_subcommand' -l columns -r
complete -c zulspectrum -n '__fish_use_subcommand' -l colours -r
complete -c zulspectrum -n '__fish_use_subcommand' -l colors -r
complete -c zulspectrum -n '__fish_use_subcommand' -l range -r
complete -c zulspectrum -n '__fish_use_subcommand' -l format -r
complete -c zulspectrum -n '__fish_use_subcommand' -l output -r
complete -c zulspectrum -n '__fish_use_subcommand' -l json
complete -c zulspectrum -n '__fish_use_subcommand' -l version
complete -c zulspectrum -n '__fish_seen_subcommand_from transform' -l help
complete -c zulspectrum -n '__fish_seen_subcommand_from transform' -l family -r
complete -c zulspectrum -n '__fish_seen_subcommand_from transform' -l length -r
complete -c zulspectrum -n '__fish_seen_subcommand_from transform' -l nperseg -r
complete -c zulspectrum -n '__fish_seen_subcommand_from transform' -l order -r
complete -c zulspectrum -n '__fish_seen_subcommand_from transform' -l hop -r
complete -c zulspectrum -n '__fish_seen_subcommand_from transform' -l noverlap -r
complete -c zulspectrum -n '__fish_seen_subcommand_from transform' -l window -r
complete -c zulspectrum -n '__fish_seen_subcommand_from transform' -l flag -r
complete -c zulspectrum -n '__fish_seen_subcommand_from transform' -l precision -r
complete -c zulspectrum -n '__fish_seen_subcommand_from transform' -l check
complete -c zulspectrum -n '__fish_seen_subcommand_from transform' -l channel -r
complete -c zulspectrum -n '__fish_seen_subcommand_from transform' -l start -r
complete -c zulspectrum -n '__fish_seen_subcommand_from transform' -l end -r
complete -c zulspectrum -n '__fish_seen_subcommand_from transform' -l decimal -r
complete -c zulspectrum -n '__fish_seen_subcommand_from transform' -l allow-damaged
complete -c zulspectrum -n '__fish_seen_subcommand_from transform' -l format -r
complete -c zulspectrum -n '__fish_seen_subcommand_from transform' -l output -r
complete -c zulspectrum -n '__fish_seen_subcommand_from transform' -l json
complete -c zulspectrum -n __fish_use_subcommand -a transform -d 'Bins of each frame, as a table'
complete -c zulspectrum -n '__fish_seen_subcommand_from spectrogram' -l help
complete -c zulspectrum -n '__fish_seen_subcommand_from spectrogram' -l family -r
complete -c zulspectrum -n '__fish_seen_subcommand_from spectrogram' -l length -r
complete -c zulspectrum -n '__fish_seen_subcommand_from spectrogram' -l nperseg -r
complete -c zulspectrum -n '__fish_seen_subcommand_from spectrogram' -l order -r
complete -c zulspectrum -n '__fish_seen_subcommand_from spectrogram' -l hop -r
complete -c zulspectrum -n '__fish_seen_subcommand_from spectrogram' -l noverlap -r
complete -c zulspectrum -n '__fish_seen_subcommand_from spectrogram' -l window -r
complete -c zulspectrum -n '__fish_seen_subcommand_from spectrogram' -l flag -r
complete -c zulspectrum -n '__fish_seen_subcommand_from spectrogram' -l precision -r
complete -c zulspectrum -n '__fish_seen_subcommand_from spectrogram' -l check
complete -c zulspectrum -n '__fish_seen_subcommand_from spectrogram' -l channel -r
complete -c zulspectrum -n '__fish_seen_subcommand_from spectrogram' -l start -r
complete -c zulspectrum -n '__fish_seen_subcommand_from spectrogram' -l end -r
complete -c zulspectrum -n '__fish_seen_subcommand_from spectrogram' -l decimal -r
complete -c zulspectrum -n '__fish_seen_subcommand_from spectrogram' -l allow-damaged
complete -c zulspectrum -n '__fish_seen_subcommand_from spectrogram' -l columns -r
complete -c zulspectrum -n '__fish_seen_subcommand_from spectrogram' -l colours -r
complete -c zulspectrum -n '__fish_seen_subcommand_from spectrogram' -l colors -r
complete -c zulspectrum -n '__fish_seen_subcommand_from spectrogram' -l range -r
complete -c zulspectrum -n '__fish_seen_subcommand_from spectrogram' -l format -r
complete -c zulspectrum -n '__fish_seen_subcommand_from spectrogram' -l output -r
complete -c zulspectrum -n '__fish_seen_subcommand_from spectrogram' -l json
complete -c zulspectrum -n __fish_use_subcommand -a spectrogram -d 'Magnitudes over time, as a picture or a table'
complete -c zulspectrum -n '__fish_seen_subcommand_from inverse' -l help
complete -c zulspectrum -n '__fish_seen_subcommand_from inverse' -l family -r
complete -c zulspectrum -n '__fish_seen_subcommand_from inverse' -l length -r
complete -c zulspectrum -n '__fish_seen_subcommand_from inverse' -l nperseg -r
complete -c zulspectrum -n '__fish_seen_subcommand_from inverse' -l order -r
complete -c zulspectrum -n '__fish_seen_subcommand_from inverse' -l hop -r
complete -c zulspectrum -n '__fish_seen_subcommand_from inverse' -l noverlap -r
complete -c zulspectrum -n '__fish_seen_subcommand_from inverse' -l window -r
complete -c zulspectrum -n '__fish_seen_subcommand_from inverse' -l flag -r
complete -c zulspectrum -n '__fish_seen_subcommand_from inverse' -l precision -r
complete -c zulspectrum -n '__fish_seen_subcommand_from inverse' -l rate -r
complete -c zulspectrum -n '__fish_seen_subcommand_from inverse' -l samples -r
complete -c zulspectrum -n '__fish_seen_subcommand_from inverse' -l encoding -r
complete -c zulspectrum -n '__fish_seen_subcommand_from inverse' -l format -r
complete -c zulspectrum -n '__fish_seen_subcommand_from inverse' -l output -r
complete -c zulspectrum -n '__fish_seen_subcommand_from inverse' -l json
complete -c zulspectrum -n __fish_use_subcommand -a inverse -d 'Samples from the spectra that transform has written'
complete -c zulspectrum -n '__fish_seen_subcommand_from batch' -l help
complete -c zulspectrum -n '__fish_seen_subcommand_from batch' -l into -r
complete -c zulspectrum -n '__fish_seen_subcommand_from batch' -l match -r
complete -c zulspectrum -n '__fish_seen_subcommand_from batch' -l format -r
complete -c zulspectrum -n '__fish_seen_subcommand_from batch' -l again
complete -c zulspectrum -n '__fish_seen_subcommand_from batch' -l family -r
complete -c zulspectrum -n '__fish_seen_subcommand_from batch' -l length -r
complete -c zulspectrum -n '__fish_seen_subcommand_from batch' -l nperseg -r
complete -c zulspectrum -n '__fish_seen_subcommand_from batch' -l order -r
complete -c zulspectrum -n '__fish_seen_subcommand_from batch' -l hop -r
complete -c zulspectrum -n '__fish_seen_subcommand_from batch' -l noverlap -r
complete -c zulspectrum -n '__fish_seen_subcommand_from batch' -l window -r
complete -c zulspectrum -n '__fish_seen_subcommand_from batch' -l flag -r
complete -c zulspectrum -n '__fish_seen_subcommand_from batch' -l precision -r
complete -c zulspectrum -n '__fish_seen_subcommand_from batch' -l channel -r
complete -c zulspectrum -n '__fish_seen_subcommand_from batch' -l start -r
complete -c zulspectrum -n '__fish_seen_subcommand_from batch' -l end -r
complete -c zulspectrum -n '__fish_seen_subcommand_from batch' -l decimal -r
complete -c zulspectrum -n '__fish_seen_subcommand_from batch' -l allow-damaged
complete -c zulspectrum -n '__fish_seen_subcommand_from batch' -l columns -r
complete -c zulspectrum -n '__fish_seen_subcommand_from batch' -l colours -r
complete -c zulspectrum -n '__fish_seen_subcommand_from batch' -l colors -r
complete -c zulspectrum -n '__fish_seen_subcommand_from batch' -l range -r
complete -c zulspectrum -n '__fish_seen_subcommand_from batch' -l json
complete -c zulspectrum -n '__fish_seen_subcommand_from batch' -l jobs -r
complete -c zulspectrum -n __fish_use_subcommand -a batch -d 'Spectra of many files, on all cores'
complete -c zulspectrum -n '__fish_seen_subcommand_from layout' -l help
complete -c zulspectrum -n '__fish_seen_subcommand_from layout' -l json
complete -c zulspectrum -n __fish_use_subcommand -a layout -d 'Which slot of the layouts CCS, Pack and Perm holds what'
complete -c zulspectrum -n '__fish_seen_subcommand_from info' -l help
complete -c zulspectrum -n '__fish_seen_subcommand_from info' -l list
complete -c zulspectrum -n '__fish_seen_subcommand_from info' -l json
complete -c zulspectrum -n __fish_use_subcommand -a info -d 'What the library knows of one of its routines'
complete -c zulspectrum -n '__fish_seen_subcommand_from bench' -l help
complete -c zulspectrum -n '__fish_seen_subcommand_from bench' -l family -r
complete -c zulspectrum -n '__fish_seen_subcommand_from bench' -l lengths -r
complete -c zulspectrum -n '__fish_seen_subcommand_from bench' -l time TIMEr
complete -c zulspectrum -n '__fish_seen_subcommand_from bench' -l json
complete -c zulspectrum -n __fish_use_subcommand -a bench -d 'How long the transforms take on this machine'
complete -c zulspectrum -n '__fish_seen_subcommand_from completion' -l help
complete -c zulspectrum -n '__fish_seen_subcommand_from completion' -l output -r
complete -c zulspectrum -n __fish_use_subcommand -a completion -d 'A script that completes words in bash, zsh or fish'

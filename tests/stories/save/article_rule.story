# The stored form of each title: where its article goes, and which titles the rule damages.
each TITLE_NAME                    TYPED
row  38_characters_a               "A 123456789012345678901234567890123456"
row  38_characters_an              "An 12345678901234567890123456789012345"
row  38_characters_the             "The 3456789012345678901234567890123456"
row  39_characters                 123456789012345678901234567890123456789
row  39_characters_a               "A 1234567890123456789012345678901234567"
row  39_characters_an              "An 123456789012345678901234567890123456"
row  39_characters_capital_an      "AN 123456789012345678901234567890123456"
row  39_characters_capital_the     "THE 12345678901234567890123456789012345"
row  39_characters_the             "The 12345678901234567890123456789012345"
row  40_characters                 1234567890123456789012345678901234567890
row  40_characters_a               "A 12345678901234567890123456789012345678"
row  40_characters_an              "An 1234567890123456789012345678901234567"
row  40_characters_capital_an      "AN 1234567890123456789012345678901234567"
row  40_characters_capital_the     "THE 123456789012345678901234567890123456"
row  40_characters_the             "The 123456789012345678901234567890123456"
row  41_characters                 12345678901234567890123456789012345678901
row  41_characters_a               "A 123456789012345678901234567890123456789"
row  41_characters_an              "An 12345678901234567890123456789012345678"
row  41_characters_capital_an      "AN 12345678901234567890123456789012345678"
row  41_characters_capital_the     "THE 1234567890123456789012345678901234567"
row  41_characters_the             "The 1234567890123456789012345678901234567"
row  a                             "A Star Is Born"
row  a_alone                       A
row  an                            "An Ice Age"
row  an_a_team                     "An A Team"
row  an_alone                      An
row  blanks                        "   "
row  capital_a                     "A STAR IS BORN"
row  capital_an                    "AN ICE AGE"
row  capital_an_a_team             "AN A TEAM"
row  capital_an_alone              AN
row  capital_the                   "THE THIN MAN"
row  capital_the_a_team            "THE A TEAM"
row  capital_the_alone             THE
row  capital_the_an_affair         "THE AN AFFAIR"
row  no_blank_behind               Theatre
row  no_blank_behind_an            Andromeda
row  small_a                       "a thing"
row  small_an                      "an ice age"
row  small_the                     "the thing"
row  the                           "The Third Man"
row  the_a_team                    "The A Team"
row  the_alone                     The
row  the_an_affair                 "The An Affair"
row  two_adjacent_blanks           "The Big  Sleep"
row  two_articles_of_one_kind      "The The"
row  two_blanks_behind_the_article "A  Star"
row  two_blanks_without_article    "Big  Sleep"

each TITLE_NAME                    CONTENT                                    SHOWN
row  38_characters_a               "123456789012345678901234567890123456, A " "123456789012345678901234567890123456, A"
row  38_characters_an              "12345678901234567890123456789012345, An " "12345678901234567890123456789012345, An"
row  38_characters_the             "3456789012345678901234567890123456, The " "3456789012345678901234567890123456, The"
row  39_characters                 "123456789012345678901234567890123456789 " 123456789012345678901234567890123456789
row  39_characters_a               ", A                                     " ", A"
row  39_characters_an              ", An                                    " ", An"
row  39_characters_capital_an      ", AN                                    " ", AN"
row  39_characters_capital_the     ", THE                                   " ", THE"
row  39_characters_the             ", The                                   " ", The"
row  40_characters                 1234567890123456789012345678901234567890   1234567890123456789012345678901234567890
row  40_characters_a               ", A                                     " ", A"
row  40_characters_an              ", An                                    " ", An"
row  40_characters_capital_an      ", AN                                    " ", AN"
row  40_characters_capital_the     ", THE                                   " ", THE"
row  40_characters_the             ", The                                   " ", The"
row  41_characters                 1234567890123456789012345678901234567890   1234567890123456789012345678901234567890
row  41_characters_a               ", A                                     " ", A"
row  41_characters_an              ", An                                    " ", An"
row  41_characters_capital_an      ", AN                                    " ", AN"
row  41_characters_capital_the     ", THE                                   " ", THE"
row  41_characters_the             ", The                                   " ", The"
row  a                             "Star Is Born, A                         " "Star Is Born, A"
row  a_alone                       ", A                                     " ", A"
row  an                            "Ice Age, An                             " "Ice Age, An"
row  an_a_team                     " A Team, A                              " "A Team, A"
row  an_alone                      ", An                                    " ", An"
row  blanks                        "                                        " ""
row  capital_a                     "STAR IS BORN, A                         " "STAR IS BORN, A"
row  capital_an                    "ICE AGE, AN                             " "ICE AGE, AN"
row  capital_an_a_team             " A TEAM, A                              " "A TEAM, A"
row  capital_an_alone              ", AN                                    " ", AN"
row  capital_the                   "THIN MAN, THE                           " "THIN MAN, THE"
row  capital_the_a_team            "E A TEAM, A                             " "E A TEAM, A"
row  capital_the_alone             ", THE                                   " ", THE"
row  capital_the_an_affair         " AN AFFAIR, AN                          " "AN AFFAIR, AN"
row  no_blank_behind               "Theatre                                 " Theatre
row  no_blank_behind_an            "Andromeda                               " Andromeda
row  small_a                       "a thing                                 " "a thing"
row  small_an                      "an ice age                              " "an ice age"
row  small_the                     "the thing                               " "the thing"
row  the                           "Third Man, The                          " "Third Man, The"
row  the_a_team                    "e A Team, A                             " "e A Team, A"
row  the_alone                     ", The                                   " ", The"
row  the_an_affair                 " An Affair, An                          " "An Affair, An"
row  two_adjacent_blanks           "Big  Sle, The                           " "Big  Sle, The"
row  two_articles_of_one_kind      "The, The                                " "The, The"
row  two_blanks_behind_the_article " S, A                                   " "S, A"
row  two_blanks_without_article    "Big  Sleep                              " "Big  Sleep"

start
key Alt+W
type "{TYPED}"
see txtTitle "{TYPED}"
key Alt+S
see file Recpra.Dat "{CONTENT}                                                                                       "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                                                                  "
+ "                                                                \r\n"
see txtTitle "{SHOWN}"

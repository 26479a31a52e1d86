# zarvo_embed(TARGET FILE SYMBOL [STRIP])
#
# Compiles the text FILE into TARGET as `extern const std::string_view SYMBOL` of namespace zarvo;
# the using source declares it. With STRIP, PostScript comment lines (a single percent sign; lines
# of two are kept), blank lines and indentation are left out, so that a resource can be readable in
# the tree and short in every job.
function(zarvo_embed target file symbol)
  cmake_parse_arguments(PARSE_ARGV 3 arg "STRIP" "" "")
  set(input ${CMAKE_CURRENT_SOURCE_DIR}/${file})
  set(output ${CMAKE_CURRENT_BINARY_DIR}/${symbol}.cpp)
  add_custom_command(
    OUTPUT ${output}
    COMMAND ${CMAKE_COMMAND} -DINPUT=${input} -DOUTPUT=${output} -DSYMBOL=${symbol}
            -DSTRIP=${arg_STRIP} -P ${CMAKE_SOURCE_DIR}/cmake/EmbedText.cmake
    DEPENDS ${input} ${CMAKE_SOURCE_DIR}/cmake/EmbedText.cmake
    VERBATIM)
  target_sources(${target} PRIVATE ${output})
endfunction()

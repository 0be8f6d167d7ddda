//top LBX_STRUCTURAL_NETLIST="ON" a b s
//
// synthesis VERILOG_INPUT_VERSION VERILOG_2001
// qelvar message_off 10463



// (legal notice)



//synthesis_resources = 
//synopsys translate_off
`timescale 1 ps / 1 ps
//synopsys translate_on
module  top
	( 
	a,
	b,
	s,
	y,
	z) /* synthesis synthesis_lumenbox=1 */;
	input   [1:0]  a;
	input   [1:0]  b;
	input   s;
	output   [1:0]  y;
	output   z;

	wire  [1:0]  w_lg_a1w;
	wire  w_lg_s3w;
	wire  [1:0]  w_lg_w_lg_a1w2w;

	and(w_lg_a1w[0], a[0], b[0]);
	and(w_lg_a1w[1], a[1], b[1]);
	not(w_lg_s3w, s);
	or(w_lg_w_lg_a1w2w[0], w_lg_a1w[0], s);
	or(w_lg_w_lg_a1w2w[1], w_lg_a1w[1], s);
	assign
		y = w_lg_w_lg_a1w2w,
		z = w_lg_s3w;
endmodule //top
//VALID FILE
